#include "workers/worker_messages.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

std::string fieldsOf(const std::string& message) {
  MessageBuffer buffer;
  buffer.append(message);
  const std::optional<std::string_view> fields = buffer.next();
  EXPECT_TRUE(fields);
  return std::string(fields.value_or(""));
}

TEST(WorkerMessages, ATaskComesAsItWent) {
  const WorkerTask task{
      {"run", "", std::string("a\0b", 3)}, "{\"x\": 1}\n", {"a=1=2"}, {"j=\xff"}, 3};
  const WorkerTask read = taskIn(fieldsOf(messageOf(task)));
  EXPECT_EQ(read.words, task.words);
  EXPECT_EQ(read.graph, task.graph);
  EXPECT_EQ(read.inputs, task.inputs);
  EXPECT_EQ(read.jobs, task.jobs);
  EXPECT_EQ(read.workers, 3);
}

TEST(WorkerMessages, AFrameComesAsItWent) {
  FinishedFrame frame;
  frame.place = 7;
  frame.outcome.frameText = "-1.5";
  frame.outcome.failure = Failure::transient;
  frame.outcome.errors = 1;
  frame.outcome.warnings = 2;
  frame.outcome.seconds = 0.1;
  frame.outcome.started = std::chrono::system_clock::now();
  frame.outcome.filesRead = {"a.npy", "b.npy"};
  frame.messages = {{vantrelSource, levelWarning, "odd\n", 0, 0}};
  frame.content = "{}";
  const std::string fields = fieldsOf(messageOf(frame));
  FieldReader reader(fields);
  EXPECT_EQ(reader.number(), static_cast<std::uint64_t>(WorkerNews::finished));
  const FinishedFrame read = frameIn(reader);
  EXPECT_EQ(read.place, 7);
  EXPECT_EQ(read.outcome.frameText, "-1.5");
  EXPECT_EQ(read.outcome.failure, Failure::transient);
  EXPECT_EQ(read.outcome.errors, 1);
  EXPECT_EQ(read.outcome.warnings, 2);
  EXPECT_EQ(read.outcome.seconds, 0.1);
  EXPECT_EQ(read.outcome.started, frame.outcome.started);
  EXPECT_EQ(read.outcome.filesRead, frame.outcome.filesRead);
  ASSERT_EQ(read.messages.size(), 1);
  EXPECT_EQ(read.messages[0].source, vantrelSource);
  EXPECT_EQ(read.messages[0].level, levelWarning);
  EXPECT_EQ(read.messages[0].text, "odd\n");
  EXPECT_EQ(read.content, "{}");
}

TEST(WorkerMessages, ComeInAnyPieces) {
  const std::string bytes =
      messageOf(WorkerOrder::stop) + messageOf(WorkerNews::notLoaded, "no") + runMessage({3, 4});
  MessageBuffer buffer;
  std::vector<std::string> messages;
  for (const char byte : bytes) {
    buffer.append({&byte, 1});
    while (const std::optional<std::string_view> fields = buffer.next())
      messages.emplace_back(*fields);
  }
  EXPECT_EQ(messages, (std::vector{fieldsOf(messageOf(WorkerOrder::stop)),
                                   fieldsOf(messageOf(WorkerNews::notLoaded, "no")),
                                   fieldsOf(runMessage({3, 4}))}));
}

TEST(WorkerMessages, BytesThatMakeNoSenseAreRefused) {
  const std::string fields = fieldsOf(messageOf(FinishedFrame()));
  for (std::size_t size = 8; size < fields.size(); ++size) {
    const std::string cut = fields.substr(0, size);
    FieldReader reader(cut);
    static_cast<void>(reader.number());
    EXPECT_THROW(frameIn(reader), MessageError) << size;
  }
}

}  // namespace
}  // namespace vtlcmd::runner

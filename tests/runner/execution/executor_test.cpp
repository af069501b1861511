#include "execution/executor.h"

#include <gtest/gtest.h>

#include "nodes/node_table.h"
#include "runner/support/temporary_folder.h"
#include "text/library_text.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

using Vantrel::Simulation::Time;

constexpr const char* graphText = R"({
  "inputs": [{"name": "time", "type": "Simulation::Time"}, {"name": "path", "type": "string"}],
  "nodes": [
    {"name": "lines", "op": "read_lines", "in": {"path": "path"}},
    {"name": "count", "op": "length", "in": {"array": "lines"}},
    {"name": "frame", "op": "time_frame", "in": {"time": "time"}}],
  "outputs": [{"name": "count", "from": "count"}, {"name": "frame", "from": "frame"}]})";

int readings = 0;

/// Reads lines as the operation does, counts that and warns.
const NodeOperation& countedReading() {
  static const NodeOperation operation = [] {
    NodeOperation counted = *findOperation("read_lines");
    counted.evaluate = [](const NodeCall& call) {
      ++readings;
      call.warn("it is long");
      return findOperation("read_lines")->evaluate(call);
    };
    return counted;
  }();
  return operation;
}

class FrameAfterFrame : public testing::Test {
 protected:
  FrameAfterFrame() {
    graph_.nodes[0].operation = &countedReading();
    readings = 0;
  }

  struct Frame {
    std::int64_t count;
    double frame;
  };

  std::optional<Frame> run(double frame) {
    logger_.messages.clear();
    filesRead_.clear();
    Time time;
    time.frame = frame;
    const Executor::Result result =
        executor_.run({Orvel::makeValue<Time>(time),
                       Orvel::makeValue<Orvel::String>(libraryText(file_.string()))});
    if (!result.outputs || result.outputs->size() != 2) return std::nullopt;
    return Frame{(*result.outputs)[0].getLong(), (*result.outputs)[1].getDouble()};
  }

  std::vector<std::string> messages() const {
    std::vector<std::string> texts;
    for (const LogMessage& message : logger_.messages) texts.push_back(message.text);
    return texts;
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_.file("lines.txt", "a\nb\n");
  Graph graph_ = parseGraph(graphText);
  VtlCmdLogger logger_{10};
  std::vector<std::filesystem::path> filesRead_;
  Executor executor_{graph_, logger_, [this](const auto& file) { filesRead_.push_back(file); }};
};

TEST_F(FrameAfterFrame, WhatDoesntDependOnTheFrameIsEvaluatedOnceAndToldEachTime) {
  for (int frame = 1; frame <= 200; ++frame) {
    const std::optional<Frame> result = run(frame);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->count, 2);
    EXPECT_EQ(result->frame, frame);
    EXPECT_EQ(messages(), std::vector<std::string>{"Node 'lines' (read_lines): it is long."});
    EXPECT_EQ(filesRead_, std::vector{file_});
  }
  EXPECT_EQ(readings, 1);
  EXPECT_EQ(logger_.warningCount, 200U);
}

TEST_F(FrameAfterFrame, AFileThatChangesIsReadAgain) {
  ASSERT_TRUE(run(1));
  folder_.file("lines.txt", "a\nb\nc\n");
  const std::optional<Frame> second = run(2);
  ASSERT_TRUE(second);
  EXPECT_EQ(second->count, 3);
  ASSERT_TRUE(run(3));
  EXPECT_EQ(readings, 2);
}

TEST_F(FrameAfterFrame, AFailureIsntKept) {
  std::filesystem::remove(file_);
  EXPECT_FALSE(run(1));
  folder_.file("lines.txt", "a\n");
  const std::optional<Frame> second = run(2);
  ASSERT_TRUE(second);
  EXPECT_EQ(second->count, 1);
  std::filesystem::remove(file_);
  EXPECT_FALSE(run(3));
  EXPECT_EQ(messages().size(), 2U);
}

}  // namespace
}  // namespace vtlcmd::runner

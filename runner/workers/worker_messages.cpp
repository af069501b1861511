#include "workers/worker_messages.h"

#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

FieldWriter begin(WorkerOrder order) {
  FieldWriter fields;
  fields.number(static_cast<std::uint64_t>(order));
  return fields;
}

FieldWriter begin(WorkerNews news) {
  FieldWriter fields;
  fields.number(static_cast<std::uint64_t>(news));
  return fields;
}

std::chrono::system_clock::time_point timeFrom(std::uint64_t ticks) {
  using Clock = std::chrono::system_clock;
  return Clock::time_point(Clock::duration(static_cast<Clock::rep>(ticks)));
}

}  // namespace

std::string messageOf(const WorkerTask& task) {
  FieldWriter fields;
  fields.texts(task.words);
  fields.text(task.graph);
  fields.texts(task.inputs);
  fields.texts(task.jobs);
  fields.number(task.workers);
  return fields.message();
}

WorkerTask taskIn(std::string_view fields) {
  FieldReader reader(fields);
  WorkerTask task;
  task.words = reader.texts();
  task.graph = reader.text();
  task.inputs = reader.texts();
  task.jobs = reader.texts();
  task.workers = static_cast<unsigned>(reader.number());
  return task;
}

std::string runMessage(const std::vector<std::size_t>& places) {
  FieldWriter fields = begin(WorkerOrder::run);
  fields.number(places.size());
  for (const std::size_t place : places) fields.number(place);
  return fields.message();
}

std::string messageOf(WorkerOrder order) { return begin(order).message(); }

std::string messageOf(WorkerNews news, std::string_view text) {
  FieldWriter fields = begin(news);
  fields.text(text);
  return fields.message();
}

std::string messageOf(const FinishedFrame& frame) {
  const FrameOutcome& outcome = frame.outcome;
  FieldWriter fields = begin(WorkerNews::finished);
  fields.number(frame.place);
  fields.text(outcome.frameText);
  fields.number(static_cast<std::uint64_t>(outcome.failure));
  fields.number(outcome.errors);
  fields.number(outcome.warnings);
  fields.number(static_cast<std::uint64_t>(outcome.started.time_since_epoch().count()));
  fields.real(outcome.seconds);
  fields.number(outcome.filesRead.size());
  for (const std::filesystem::path& file : outcome.filesRead) fields.text(fileText(file));
  fields.number(frame.messages.size());
  for (const LogMessage& message : frame.messages) {
    fields.number(message.source);
    fields.number(message.level);
    fields.text(message.text);
  }
  fields.text(frame.content);
  return fields.message();
}

FinishedFrame frameIn(FieldReader& fields) {
  FinishedFrame frame;
  FrameOutcome& outcome = frame.outcome;
  frame.place = static_cast<std::size_t>(fields.number());
  outcome.frameText = fields.text();
  const std::uint64_t failure = fields.number();
  if (failure > static_cast<std::uint64_t>(Failure::permanent)) throw MessageError();
  outcome.failure = static_cast<Failure>(failure);
  outcome.errors = fields.number();
  outcome.warnings = fields.number();
  outcome.started = timeFrom(fields.number());
  outcome.seconds = fields.real();
  for (std::uint64_t left = fields.number(); left > 0; --left)
    outcome.filesRead.insert(filePath(fields.text()));
  for (std::uint64_t left = fields.number(); left > 0; --left) {
    const auto source = static_cast<LogSource>(fields.number());
    const auto level = static_cast<LogLevel>(fields.number());
    frame.messages.push_back(
        {source, level, fields.text(), VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent});
  }
  frame.content = fields.text();
  return frame;
}

}  // namespace vtlcmd::runner

#include "workers/worker_death.h"

#include "journal/journal_lines.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

FinishedFrame failedFrame(std::string text, Failure failure, const std::string& frame,
                          const std::string& lastWords) {
  if (!lastWords.empty()) text += " Its process said last:\n" + lastWords;
  FinishedFrame failed;
  failed.outcome.frameText = frame;
  failed.outcome.failure = failure;
  failed.messages = {
      {vtlcmdSource, levelCritical, text, VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent}};
  return failed;
}

}  // namespace

WorkerDeath deathFrom(const ProcessEnd& end) {
  switch (end.kind) {
    case ProcessEnd::Kind::crashed:
      return {"crashed: " + end.signal, Failure::permanent};
    case ProcessEnd::Kind::killed:
      return {"was killed (" + end.signal + ")", Failure::transient};
    case ProcessEnd::Kind::tookTooMuchTime:
      return {"took more processor time than it may", Failure::transient};
    case ProcessEnd::Kind::exited:
      break;
  }
  if (end.exitCode == outOfMemoryExit) return {"ran out of memory", Failure::transient};
  return {"ended with exit code " + std::to_string(end.exitCode), Failure::permanent};
}

FinishedFrame frameOfDeath(const WorkerDeath& death, const std::string& frame,
                           const std::string& lastWords) {
  return failedFrame("The process that ran frame " + frame + " " + death.how + ".", death.failure,
                     frame, lastWords);
}

FinishedFrame frameOutOfTime(std::chrono::milliseconds timeout, const std::string& frame,
                             const std::string& lastWords) {
  const double seconds = std::chrono::duration<double>(timeout).count();
  return failedFrame("Frame " + frame + " took longer than " + shortestText(seconds) +
                         (seconds == 1 ? " second" : " seconds") + " (--frame-timeout).",
                     Failure::transient, frame, lastWords);
}

std::string contentOfDeath(const FinishedFrame& frame, std::uint32_t index) {
  FrameRecord record;
  static_cast<FrameOutcome&>(record) = frame.outcome;
  record.entry.frameIndex = index;
  for (const LogMessage& message : frame.messages)
    record.entry.messages[message.source][message.level].push_back(message.text);
  return frameContent(record);
}

}  // namespace vtlcmd::runner

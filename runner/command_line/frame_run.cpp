#include "command_line/frame_run.h"

#include <algorithm>
#include <iostream>
#include <system_error>

#include "command_line/terminal.h"
#include "frames/own_frames.h"
#include "platform/interrupt.h"
#include "readers/read_limits.h"
#include "text/control_characters.h"
#include "workers/worker_pool.h"

namespace vtlcmd::runner {
namespace {

/// Closes a run with what the graph system complained of: "2 errors, 1 warning".
void printCounts(const RunTotals& totals) {
  const char* separator = "";
  const auto print = [&](std::uint64_t count, const char* noun) {
    if (count == 0) return;
    std::cerr << separator << count << ' ' << noun << (count == 1 ? "" : "s");
    separator = ", ";
  };
  print(totals.errors, "error");
  print(totals.warnings, "warning");
  if (*separator != '\0') std::cerr << '\n';
}

RunEnd endWith(const char* outcome, ExitCode code) { return {outcome, static_cast<int>(code), {}}; }

RunEnd endAfter(const WorkerError& error, Failure ofFrames) {
  std::cerr << "vtlcmd: " << withoutControls(error.what()) << '\n';
  const bool mayPass = std::max(error.failure(), ofFrames) == Failure::transient;
  RunEnd end = endWith("stopped", mayPass ? ExitCode::tryAgain : ExitCode::runFailed);
  end.messages[vtlcmdSource][levelCritical] = {error.what()};
  return end;
}

}  // namespace

FrameRun::FrameRun(const LoadedRun& loaded, const RunOptions& options, RunReports& reports,
                   RunJournal* journal, const std::vector<bool>& isDone)
    : loaded_(loaded),
      report_(reports.useStandardOutput() ? standardErrors() : standardOutput()),
      logger_(options.report.printLimit()),
      queue_(loaded.settings.frames.size(), isDone),
      progress_(std::cerr, progressForm(options.progress), queue_.left()),
      printer_(logger_, static_cast<std::int16_t>(loaded.settings.verbosity),
               options.report.sinks(report_), progress_, loaded.settings.frames.wholeSize() > 1),
      collector_(loaded.settings.frames, queue_, journal, printer_, progress_, report_.stream,
                 {loaded.frames.failFast, [&reports](const FrameOutcome& outcome) {
                    for (const std::filesystem::path& file : outcome.filesRead) reports.keep(file);
                  }}) {
  if (progressForm(options.progress) != ProgressForm::none) ticker_.emplace(progress_);
}

RunEnd FrameRun::run() {
  std::optional<WorkerError> failure;
  try {
    runAll();
  } catch (const WorkerError& error) {
    failure = error;
  }
  collector_.takeNoMore();
  printer_.printCounts();
  progress_.hide();
  if (loaded_.settings.verbosity >= levelVerbose) printCounts(collector_.totals());
  if (collector_.journalError()) throw std::system_error(*collector_.journalError());
  return failure ? endAfter(*failure, collector_.totals().failure) : end();
}

void FrameRun::runAll() {
  const RunSettings& settings = loaded_.settings;
  const FrameSettings& frames = loaded_.frames;
  if (frames.workers > 0) {
    WorkerPool({readLimits().program, taskOf(loaded_), frames.timeout, frames.retries,
                settings.recordFrames},
               settings.frames, queue_, collector_)
        .run();
    return;
  }
  Session session(loaded_.graph, loaded_.plugIn->translation(), settings, logger_);
  runFrames(session, logger_, queue_, collector_, settings.recordFrames, frames.retries);
}

RunEnd FrameRun::end() const {
  if (!report_.stream.good())
    return endWith("stopped", readerGone() ? ExitCode::readerGone : ExitCode::runFailed);
  if (interruptSignal() != 0) return endWith("interrupted", interruptedBy(interruptSignal()));
  const Failure worst = collector_.totals().failure;
  return endWith(worst == Failure::none ? "succeeded" : "failed", exitCodeOf(worst));
}

}  // namespace vtlcmd::runner

#pragma once

#include <optional>

#include "command_line/graph_run.h"
#include "command_line/run_options.h"
#include "command_line/run_reports.h"
#include "execution/frame_printer.h"
#include "execution/progress_ticker.h"
#include "frames/frame_collector.h"
#include "journal/run_journal.h"

namespace vtlcmd::runner {

/// The frames of a run, from the first one to the last: runs and prints them.
class FrameRun {
 public:
  /// The journal may be null; `isDone` has the frames that needn't run, by place, or is empty. All
  /// must outlive this.
  FrameRun(const LoadedRun& loaded, const RunOptions& options, RunReports& reports,
           RunJournal* journal, const std::vector<bool>& isDone);

  /// Leaves the end of the journal to be written. Throws std::system_error when the journal can't
  /// be written. To be called once.
  RunEnd run();

 private:
  /// Runs the frames, here or in processes of their own.
  void runAll();
  RunEnd end() const;

  const LoadedRun& loaded_;
  TextSink report_;
  VtlCmdLogger logger_;
  FrameQueue queue_;
  Progress progress_;
  std::optional<ProgressTicker> ticker_;
  FramePrinter printer_;
  FrameCollector collector_;
};

}  // namespace vtlcmd::runner

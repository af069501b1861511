#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <set>
#include <system_error>

#include "execution/frame_list.h"
#include "execution/frame_printer.h"
#include "execution/progress.h"
#include "frames/finished_frame.h"
#include "frames/frame_order.h"
#include "journal/run_journal.h"

namespace vtlcmd::runner {

/// What all frames of a run come to.
struct RunTotals {
  /// The worst of all frames; a failure that would come again is worse than one that may not.
  Failure failure = Failure::none;
  /// Of the graph system.
  std::uint64_t errors = 0;
  std::uint64_t warnings = 0;
};

/// Takes frames as they finish: keeps each in the journal, then prints them in the run's order.
class FrameCollector {
 public:
  struct Settings {
    /// The first failed frame ends the run. A frame is kept in the journal in its turn then, so
    /// that those behind a failed one are as if they had never run.
    bool failFast = false;
    /// Called with each frame in its turn.
    std::function<void(const FrameOutcome&)> onFrame;
  };

  /// `queue` has the frames that are to come; the journal may be null. All that is handed over must
  /// outlive this.
  FrameCollector(const FrameList& frames, const FrameQueue& queue, RunJournal* journal,
                 FramePrinter& printer, Progress& progress, std::ostream& report,
                 Settings settings);

  /// To be called when a frame begins. Throws std::system_error when the journal can't be written.
  void begin(std::size_t place, unsigned worker);

  /// Takes a frame. False when no more are wanted.
  bool take(FinishedFrame frame);

  /// Prints what has finished, whatever is missing before it. To be called in the end.
  void takeNoMore();

  /// Whether those that wait for their turn take so much memory that others should wait.
  bool isFull() const;
  /// The place whose turn it is.
  std::optional<std::size_t> awaited() const { return order_.awaited(); }

  const RunTotals& totals() const noexcept { return totals_; }
  /// Why the journal couldn't be written.
  const std::optional<std::system_error>& journalError() const noexcept { return journalError_; }

 private:
  void keep(const FinishedFrame& frame);
  void show(const FinishedFrame& frame);

  const FrameList& frames_;
  FrameOrder order_;
  RunJournal* journal_;
  FramePrinter& printer_;
  Progress& progress_;
  std::ostream& report_;
  Settings settings_;
  RunTotals totals_;
  std::size_t taken_ = 0;
  /// A frame has ended the run.
  bool hasEnded_ = false;
  std::optional<std::system_error> journalError_;
};

}  // namespace vtlcmd::runner

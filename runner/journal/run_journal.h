#pragma once

#include <cstddef>
#include <string>

#include "journal/journal_file.h"
#include "vtlcmd/logging/run_report.h"

namespace vtlcmd::runner {

/// How a run went, for its last line.
struct RunEnd {
  /// "succeeded", "failed", "interrupted", "stopped" (before all frames ran) or "not loaded".
  std::string outcome;
  int exitCode = 0;
  /// Those of no frame.
  MessagesBySource messages;
};

/// The journal of the run that goes on. All throw std::system_error when it can't be written.
class RunJournal {
 public:
  /// With what `run_line.h` tells.
  RunJournal(JournalFile file, const std::string& runContent, const std::string& runTimes);

  /// `worker` is as in FrameRecord.
  void startFrame(std::size_t index, const std::string& frame, unsigned worker);
  /// With what `frameContent` and `frameTimes` tell.
  void addFrame(const std::string& content, const std::string& times);
  void end(const RunEnd& end);

  JournalFile& file() noexcept { return file_; }

 private:
  JournalFile file_;
};

}  // namespace vtlcmd::runner

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "execution/frame_list.h"

namespace vtlcmd::runner {

/// A journal that is of another run than the one that wants to go on with it, in words for the
/// user.
class DifferentRun : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What the runs before this one have left in a journal.
struct EarlierRun {
  /// By place: the frames that succeeded.
  std::vector<bool> isDone;
  /// Files with computed names that these have read.
  std::set<std::filesystem::path> filesRead;
  /// The last one's.
  std::uint64_t attempt = 0;
  /// The bytes of its whole lines.
  std::uint64_t size = 0;
};

/// Reads the journal of a run that is to go on. `runContent` is what `run_line.h` tells of the run
/// now, `frames` are its frames. Nothing when the first line isn't whole. Throws JournalError, and
/// DifferentRun when what frames follow from has changed.
std::optional<EarlierRun> readEarlierRun(const std::filesystem::path& journal,
                                         const std::string& runContent, const FrameList& frames);

}  // namespace vtlcmd::runner

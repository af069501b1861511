#pragma once

#include <cstddef>
#include <vector>

#include "farm/farm_folder.h"

namespace vtlcmd::runner {

/// What a farm's folder tells of a frame.
enum class FrameState : unsigned char {
  /// No task has begun it, or the one that had gave it up.
  missing,
  /// It runs, or its task was lost with it.
  started,
  /// It failed in a way that another attempt may not.
  failedForNow,
  failed,
  done,
};

/// By index of the whole job. Reads the journals from end to end; takes a byte a frame. A success
/// counts more than any failure, a later failure more than an earlier one. Throws JournalError,
/// and std::filesystem::filesystem_error where the folder can't be read.
std::vector<FrameState> surveyFrames(const FarmFolder& folder, std::size_t frames);

}  // namespace vtlcmd::runner

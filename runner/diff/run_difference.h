#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "diff/compared_run.h"
#include "diff/tolerance.h"
#include "text/json.h"

namespace vtlcmd::runner {

/// One thing in which two runs differ.
struct RunDifference {
  std::string frame;
  /// Empty for what belongs to the frame as a whole.
  std::string output;
  /// In the output its place, as ValuePart has it, "type" or, where one run lacks the output,
  /// empty; of the frame "state" or "messages".
  std::string place;
  /// Null where a run has nothing there.
  Json a;
  Json b;
};

/// How many frames were compared.
struct DifferenceCounts {
  std::uint64_t framesOfA = 0;
  std::uint64_t framesOfB = 0;
  std::uint64_t differentFrames = 0;
  std::uint64_t differences = 0;
};

/// Compares two runs frame by frame, in memory that doesn't grow with the frames: whether a frame
/// succeeded, failed or was interrupted, its outputs' exact values, its problems' messages. Tells
/// each difference, frames by rising number. Throws JournalError.
DifferenceCounts compareRuns(ComparedRun& a, ComparedRun& b, const Tolerance& tolerance,
                             const std::function<void(const RunDifference&)>& tell);

}  // namespace vtlcmd::runner

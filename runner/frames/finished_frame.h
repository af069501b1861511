#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "execution/frame_record.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// A frame that has run, in whatever process.
struct FinishedFrame {
  /// Among the frames of the run.
  std::size_t place = 0;
  FrameOutcome outcome;
  /// In the order of their coming.
  std::vector<LogMessage> messages;
  /// What the journal tells of it, as `frameContent` gives it; empty when there is no journal.
  std::string content;
  /// What its process said on standard error meanwhile, if that doesn't lead there by itself.
  std::string said;
};

}  // namespace vtlcmd::runner

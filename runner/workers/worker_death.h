#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "frames/finished_frame.h"
#include "platform/child_process.h"

namespace vtlcmd::runner {

/// How the process ended that was to run a frame.
struct WorkerDeath {
  /// "crashed: Segmentation fault"
  std::string how;
  /// Whether another attempt may not meet it.
  Failure failure = Failure::permanent;
};

WorkerDeath deathFrom(const ProcessEnd& end);

/// The frame that a process died in, with a critical message; `lastWords` may be empty.
FinishedFrame frameOfDeath(const WorkerDeath& death, const std::string& frame,
                           const std::string& lastWords);

/// The frame that took longer than it may.
FinishedFrame frameOutOfTime(std::chrono::milliseconds timeout, const std::string& frame,
                             const std::string& lastWords);

/// What a journal tells of such a frame, the one with that index of the whole run.
std::string contentOfDeath(const FinishedFrame& frame, std::uint32_t index);

}  // namespace vtlcmd::runner

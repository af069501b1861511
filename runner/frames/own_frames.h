#pragma once

#include "execution/session.h"
#include "frames/finished_frame.h"
#include "frames/frame_collector.h"
#include "frames/frame_queue.h"

namespace vtlcmd::runner {

/// Runs a frame in this process. The logger is the session's; it holds no messages afterwards.
FinishedFrame runFrame(Session& session, std::size_t place, VtlCmdLogger& logger, bool isRecorded);

/// Whether a frame that failed in its `attempt`-th run is to be run again, of `retries` further
/// attempts that it may have.
bool mayRunAgain(const FrameOutcome& outcome, unsigned attempt, unsigned retries);

/// Runs the frames of a queue in this process, one after the other. An interrupt ends that.
/// `isRecorded` says whether the frames go to a journal. Throws what the collector throws.
void runFrames(Session& session, VtlCmdLogger& logger, FrameQueue& queue, FrameCollector& collector,
               bool isRecorded, unsigned retries);

}  // namespace vtlcmd::runner

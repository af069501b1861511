#include "frames/own_frames.h"

#include <utility>

#include "journal/journal_lines.h"
#include "platform/interrupt.h"

namespace vtlcmd::runner {

FinishedFrame runFrame(Session& session, std::size_t place, VtlCmdLogger& logger, bool isRecorded) {
  FrameRecord record = session.run(place);
  FinishedFrame frame;
  frame.place = place;
  if (isRecorded) frame.content = frameContent(record);
  frame.outcome = std::move(record);
  frame.messages = std::exchange(logger.messages, {});
  // The next frame is likely to say as much.
  logger.messages.reserve(frame.messages.size());
  return frame;
}

bool mayRunAgain(const FrameOutcome& outcome, unsigned attempt, unsigned retries) {
  return outcome.failure == Failure::transient && attempt <= retries && interruptSignal() == 0;
}

void runFrames(Session& session, VtlCmdLogger& logger, FrameQueue& queue, FrameCollector& collector,
               bool isRecorded, unsigned retries) {
  while (interruptSignal() == 0) {
    const std::optional<std::size_t> place = queue.take();
    if (!place) return;
    collector.begin(*place, 0);
    FinishedFrame frame = runFrame(session, *place, logger, isRecorded);
    unsigned attempt = 1;
    while (mayRunAgain(frame.outcome, attempt, retries)) {
      collector.begin(*place, 0);
      frame = runFrame(session, *place, logger, isRecorded);
      frame.outcome.attempts = ++attempt;
    }
    if (!collector.take(std::move(frame))) return;
  }
}

}  // namespace vtlcmd::runner

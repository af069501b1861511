#include "frames/own_frames.h"

#include <utility>

#include "journal/journal_lines.h"
#include "platform/interrupt.h"

namespace vtlcmd::runner {

FinishedFrame runFrame(Session& session, std::size_t place, VtlCmdLogger& logger, bool isRecorded) {
  FinishedFrame frame;
  frame.place = place;
  frame.record = session.run(place);
  frame.messages = std::exchange(logger.messages, {});
  if (isRecorded) frame.content = frameContent(frame.record);
  return frame;
}

bool mayRunAgain(const FrameRecord& record, unsigned attempt, unsigned retries) {
  return record.failure == Failure::transient && attempt <= retries && interruptSignal() == 0;
}

void runFrames(Session& session, VtlCmdLogger& logger, FrameQueue& queue, FrameCollector& collector,
               bool isRecorded, unsigned retries) {
  while (interruptSignal() == 0) {
    const std::optional<std::size_t> place = queue.take();
    if (!place) return;
    FinishedFrame frame;
    for (unsigned attempt = 1; attempt == 1 || mayRunAgain(frame.record, attempt - 1, retries);
         ++attempt) {
      collector.begin(*place, 0);
      frame = runFrame(session, *place, logger, isRecorded);
      frame.record.attempts = attempt;
    }
    if (!collector.take(std::move(frame))) return;
  }
}

}  // namespace vtlcmd::runner

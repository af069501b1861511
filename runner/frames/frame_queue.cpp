#include "frames/frame_queue.h"

#include <algorithm>

namespace vtlcmd::runner {

FrameQueue::FrameQueue(std::size_t count, const std::vector<bool>& isDone)
    : count_(count),
      isDone_(isDone),
      left_(count - static_cast<std::size_t>(std::count(isDone.begin(), isDone.end(), true))) {}

std::optional<std::size_t> FrameQueue::take() {
  // What came back was taken before all that follows.
  if (!returned_.empty()) return returned_.extract(returned_.begin()).value();
  while (!isDone_.empty() && next_ < count_ && isDone_[next_]) ++next_;
  if (next_ == count_) return std::nullopt;
  --left_;
  return next_++;
}

}  // namespace vtlcmd::runner

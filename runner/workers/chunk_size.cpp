#include "workers/chunk_size.h"

#include <algorithm>

namespace vtlcmd::runner {
namespace {

/// In seconds. A tenth of it is as good as nothing, and long for a message.
constexpr double chunkTime = 0.05;
constexpr double scarceTime = 0.005;
constexpr double mostOfChunk = 1000;
/// What the newest frame weighs in the average.
constexpr double weight = 0.2;

}  // namespace

void ChunkSize::addMeasurement(double secondsOfFrame) {
  // A long frame counts at once: those behind it would wait for it.
  seconds_ = std::max(secondsOfFrame * weight + seconds_.value_or(secondsOfFrame) * (1 - weight),
                      secondsOfFrame > chunkTime ? secondsOfFrame : 0);
}

std::size_t ChunkSize::next(std::size_t before, std::size_t left) const {
  if (!seconds_) return 1;
  const double inTime = *seconds_ > 0 ? std::min(chunkTime / *seconds_, mostOfChunk) : mostOfChunk;
  // The last ones are shared by all.
  const std::size_t share = left / (2 * std::size_t{workers_});
  return std::max<std::size_t>(1, std::min({static_cast<std::size_t>(inTime), 2 * before, share}));
}

bool ChunkSize::isScarce(std::size_t inHand) const {
  return inHand == 0 || (seconds_ && static_cast<double>(inHand) * *seconds_ < scarceTime);
}

}  // namespace vtlcmd::runner

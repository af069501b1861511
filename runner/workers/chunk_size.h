#pragma once

#include <chrono>
#include <cstddef>
#include <optional>

namespace vtlcmd::runner {

/// How many frames a worker is given at once: the more, the less they take.
class ChunkSize {
 public:
  explicit ChunkSize(unsigned workers) : workers_(workers) {}

  void addMeasurement(double secondsOfFrame);

  /// For a worker that was given `before` frames the last time, of `left` that are still to be
  /// given. At least one.
  std::size_t next(std::size_t before, std::size_t left) const;

  /// Whether a worker with so many frames in hand is to be given more before it waits for them.
  bool isScarce(std::size_t inHand) const;

 private:
  unsigned workers_;
  /// A moving average; nothing before the first one.
  std::optional<double> seconds_;
};

}  // namespace vtlcmd::runner

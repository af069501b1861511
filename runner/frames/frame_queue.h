#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <vector>

namespace vtlcmd::runner {

/// The frames of a run that are still to be given to somebody who runs them, by their places.
class FrameQueue {
 public:
  /// Of `count` frames all but those that `isDone` has, which is empty or has a value a frame.
  explicit FrameQueue(std::size_t count, const std::vector<bool>& isDone = {});

  /// The lowest place; nothing when all are given away.
  std::optional<std::size_t> take();

  /// A place that was taken and is to be taken again.
  void putBack(std::size_t place) { returned_.insert(place); }

  /// How many are still to be taken.
  std::size_t left() const noexcept { return left_ + returned_.size(); }

 private:
  std::size_t count_;
  std::vector<bool> isDone_;
  /// All places from here on weren't taken yet, but for those that are done.
  std::size_t next_ = 0;
  std::size_t left_;
  std::set<std::size_t> returned_;
};

}  // namespace vtlcmd::runner

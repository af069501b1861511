#pragma once

#include <cstddef>
#include <vector>

namespace vtlcmd::runner {

/// Frame numbers in the order of a run. They are computed from ranges, so that a long list takes
/// no memory.
class FrameList {
 public:
  /// Appends `count` frames, above zero: `first`, `first + step` and so on.
  void append(double first, double step, std::size_t count);

  std::size_t size() const noexcept { return size_; }

  /// The frame at a place below the size.
  double operator[](std::size_t index) const;

 private:
  struct Range {
    std::size_t begin;
    double first;
    double step;
  };

  std::vector<Range> ranges_;
  std::size_t size_ = 0;
};

}  // namespace vtlcmd::runner

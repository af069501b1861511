#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace vtlcmd::runner {

/// Frame numbers in the order of a run. They are computed from ranges, so that a long list takes
/// no memory. Of a list that is a part of another one, each frame knows its place in the whole.
class FrameList {
 public:
  /// Appends `count` frames, above zero: `first`, `first + step` and so on. The list is then a
  /// whole one.
  void append(double first, double step, std::size_t count);

  /// Appends the frame at a place of another list, which is a whole one. This list is then a part
  /// of that one, and all its frames must be.
  void appendFrom(const FrameList& whole, std::size_t place);

  std::size_t size() const noexcept { return size_; }

  /// The frame at a place below the size.
  double operator[](std::size_t place) const;
  /// All of them.
  std::vector<double> numbers() const;

  /// Where a frame is in the list, be the number computed by other steps or not; the first place of
  /// several.
  std::optional<std::size_t> placeOf(double frame) const;

  /// Where the frame at a place stands in the whole list, and the size of that.
  std::size_t placeInWhole(std::size_t place) const;
  std::size_t wholeSize() const noexcept { return wholeSize_; }

 private:
  struct Range {
    std::size_t begin;
    double first;
    double step;
    /// Steps from `first` to the range's first frame.
    std::size_t skipped;
    /// The place of the range's first frame in the whole list.
    std::size_t placeInWhole;
  };

  const Range& rangeAt(std::size_t place) const;

  std::vector<Range> ranges_;
  std::size_t size_ = 0;
  std::size_t wholeSize_ = 0;
};

}  // namespace vtlcmd::runner

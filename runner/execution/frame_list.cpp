#include "execution/frame_list.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vtlcmd::runner {
namespace {

/// How far from a frame a number may be that means it, in steps.
constexpr double tolerance = 1e-6;

}  // namespace

void FrameList::append(double first, double step, std::size_t count) {
  ranges_.push_back({size_, first, step, 0, size_});
  size_ += count;
  wholeSize_ = size_;
}

void FrameList::appendFrom(const FrameList& whole, std::size_t place) {
  const Range& range = whole.rangeAt(place);
  const bool goesOn =
      size_ > 0 && placeInWhole(size_ - 1) + 1 == place && place != range.placeInWhole;
  if (!goesOn) ranges_.push_back({size_, range.first, range.step, place - range.begin, place});
  ++size_;
  wholeSize_ = whole.size();
}

double FrameList::operator[](std::size_t place) const {
  const Range& range = rangeAt(place);
  return range.first + static_cast<double>(range.skipped + place - range.begin) * range.step;
}

std::vector<double> FrameList::numbers() const {
  std::vector<double> numbers;
  numbers.reserve(size_);
  for (std::size_t place = 0; place < size_; ++place) numbers.push_back((*this)[place]);
  return numbers;
}

std::size_t FrameList::placeInWhole(std::size_t place) const {
  const Range& range = rangeAt(place);
  return range.placeInWhole + place - range.begin;
}

const FrameList::Range& FrameList::rangeAt(std::size_t place) const {
  const auto behind =
      std::upper_bound(ranges_.begin(), ranges_.end(), place,
                       [](std::size_t value, const Range& range) { return value < range.begin; });
  return *std::prev(behind);
}

std::optional<std::size_t> FrameList::placeOf(double frame) const {
  for (std::size_t i = 0; i < ranges_.size(); ++i) {
    const Range& range = ranges_[i];
    const std::size_t end = i + 1 < ranges_.size() ? ranges_[i + 1].begin : size_;
    const double step = range.step != 0 ? range.step : 1;
    const double steps = (frame - range.first) / step;
    const double nearest = std::nearbyint(steps);
    if (nearest < 0 || nearest >= static_cast<double>(end - range.begin) ||
        std::abs(steps - nearest) > tolerance)
      continue;
    return range.begin + static_cast<std::size_t>(nearest);
  }
  return std::nullopt;
}

}  // namespace vtlcmd::runner

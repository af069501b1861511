#include "execution/frame_list.h"

#include <algorithm>
#include <iterator>

namespace vtlcmd::runner {

void FrameList::append(double first, double step, std::size_t count) {
  ranges_.push_back({size_, first, step});
  size_ += count;
}

double FrameList::operator[](std::size_t index) const {
  const auto behind =
      std::upper_bound(ranges_.begin(), ranges_.end(), index,
                       [](std::size_t place, const Range& range) { return place < range.begin; });
  const Range& range = *std::prev(behind);
  return range.first + static_cast<double>(index - range.begin) * range.step;
}

}  // namespace vtlcmd::runner

#include "report/frame_ranges.h"

#include <cstddef>

namespace vtlcmd::runner {
namespace {

/// More of them say less to a reader than their number.
constexpr std::size_t mostRanges = 8;

}  // namespace

void FrameRanges::add(std::uint64_t index, const std::string& frame) {
  ++count_;
  if (more_ == 0 && !ranges_.empty() && ranges_.back().end == index) {
    ranges_.back().end = index + 1;
    ranges_.back().last = frame;
  } else if (ranges_.size() < mostRanges) {
    ranges_.push_back({index + 1, frame, frame});
  } else {
    ++more_;
  }
}

std::string FrameRanges::text() const {
  std::string text;
  for (const Range& range : ranges_) {
    if (!text.empty()) text += ", ";
    text += range.first;
    if (range.first == range.last) continue;
    // Behind a dash a minus would be lost.
    text += range.last.starts_with('-') ? " to " : "–";
    text += range.last;
  }
  if (more_ > 0) text += " and " + groupedDigits(more_) + " more";
  return text;
}

std::string groupedDigits(std::uint64_t count) {
  std::string digits = std::to_string(count);
  for (std::size_t place = digits.size(); place > 3; place -= 3) digits.insert(place - 3, ",");
  return digits;
}

std::string counted(std::uint64_t count, const std::string& noun) {
  return groupedDigits(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace vtlcmd::runner

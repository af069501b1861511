#include "report/job.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "execution/frame_list_text.h"
#include "execution/frame_list_writer.h"

namespace vtlcmd::runner {

Job::Job(std::set<std::string> texts) : texts_(std::move(texts)) {
  for (const std::string& text : texts_) {
    const std::vector<double> frames = parseFrameList(text).numbers();
    frames_.insert(frames_.end(), frames.begin(), frames.end());
  }
  if (!isPutTogether() && !std::is_sorted(frames_.begin(), frames_.end())) {
    indexes_.resize(frames_.size());
    std::iota(indexes_.begin(), indexes_.end(), std::uint32_t{0});
    std::stable_sort(indexes_.begin(), indexes_.end(),
                     [this](std::uint32_t a, std::uint32_t b) { return frames_[a] < frames_[b]; });
  }
  std::sort(frames_.begin(), frames_.end());
  if (isPutTogether()) frames_.erase(std::unique(frames_.begin(), frames_.end()), frames_.end());
}

std::string Job::framesText() const {
  return texts_.size() == 1 ? *texts_.begin() : exactFramesText(frames_);
}

std::optional<std::size_t> Job::indexOf(const FrameFacts& frame) const {
  std::size_t index = frame.index;
  if (isPutTogether()) {
    const double number = frameNumber(frame.frame);
    const auto found = std::lower_bound(frames_.begin(), frames_.end(), number);
    if (found == frames_.end() || *found != number) return std::nullopt;
    index = static_cast<std::size_t>(found - frames_.begin());
  }
  if (index >= frames_.size()) return std::nullopt;
  return index;
}

}  // namespace vtlcmd::runner

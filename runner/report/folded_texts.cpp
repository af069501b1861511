#include "report/folded_texts.h"

namespace vtlcmd::runner {
namespace {

/// With the frames and what stands round them in a page.
std::size_t bytesOf(const std::string& text) { return text.size() + 40; }

}  // namespace

void FoldedTexts::add(std::uint64_t index, const std::string& frame, const std::string& text) {
  if (const auto known = places_.find(text); known != places_.end())
    return first_[known->second].frames.add(index, frame);
  const std::size_t half = room_ / 2;
  if (first_.empty() || (last_.empty() && firstBytes_ + bytesOf(text) <= half)) {
    firstBytes_ += bytesOf(text);
    places_.emplace(text, first_.size());
    first_.push_back({text, {}});
    return first_.back().frames.add(index, frame);
  }
  if (last_.empty() || last_.back().text != text) {
    lastBytes_ += bytesOf(text);
    last_.push_back({text, {}});
  }
  last_.back().frames.add(index, frame);
  while (lastBytes_ > half && last_.size() > 1) {
    lastBytes_ -= bytesOf(last_.front().text);
    leftOut_ += last_.front().frames.count();
    last_.pop_front();
  }
}

}  // namespace vtlcmd::runner

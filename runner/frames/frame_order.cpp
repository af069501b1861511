#include "frames/frame_order.h"

#include <utility>

namespace vtlcmd::runner {
namespace {

std::size_t sizeOf(const FinishedFrame& frame) {
  std::size_t size = sizeof frame + frame.content.size() + frame.said.size();
  for (const LogMessage& message : frame.messages) size += sizeof message + message.text.size();
  return size;
}

}  // namespace

FrameOrder::FrameOrder(FrameQueue order) : order_(std::move(order)), awaited_(order_.take()) {}

bool FrameOrder::takeTurn(std::size_t place) {
  if (awaited_ != place) return false;
  awaited_ = order_.take();
  return true;
}

void FrameOrder::add(FinishedFrame frame) {
  size_ += sizeOf(frame);
  waiting_.insert_or_assign(frame.place, std::move(frame));
}

std::optional<FinishedFrame> FrameOrder::next() {
  if (waiting_.empty() || waiting_.begin()->first != awaited_) return std::nullopt;
  awaited_ = order_.take();
  return takeFirst();
}

std::optional<FinishedFrame> FrameOrder::nextPresent() {
  if (waiting_.empty()) return std::nullopt;
  return takeFirst();
}

FinishedFrame FrameOrder::takeFirst() {
  FinishedFrame frame = std::move(waiting_.extract(waiting_.begin()).mapped());
  size_ -= sizeOf(frame);
  return frame;
}

}  // namespace vtlcmd::runner

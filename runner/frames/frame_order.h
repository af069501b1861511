#pragma once

#include <cstddef>
#include <map>
#include <optional>

#include "frames/finished_frame.h"
#include "frames/frame_queue.h"

namespace vtlcmd::runner {

/// Puts frames that finish in any order into that of the run.
class FrameOrder {
 public:
  /// `order` gives the frames in order.
  explicit FrameOrder(FrameQueue order);

  /// For a frame that is handed on at once: whether it is its turn, which then is over.
  bool takeTurn(std::size_t place);

  /// Any other frame.
  void add(FinishedFrame frame);

  /// The frame whose turn it is; nothing while it isn't finished.
  std::optional<FinishedFrame> next();

  /// For when no more will come: the first one that is there, whatever is missing before it.
  std::optional<FinishedFrame> nextPresent();

  /// The place whose turn it is.
  std::optional<std::size_t> awaited() const noexcept { return awaited_; }

  /// What the frames take that wait, in bytes, as far as it grows with them.
  std::size_t size() const noexcept { return size_; }

 private:
  FinishedFrame takeFirst();

  FrameQueue order_;
  std::optional<std::size_t> awaited_;
  std::map<std::size_t, FinishedFrame> waiting_;
  std::size_t size_ = 0;
};

}  // namespace vtlcmd::runner

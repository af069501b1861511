#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "report/frame_ranges.h"

namespace vtlcmd::runner {

/// Texts over the frames, each once with the frames that have it. Of more text than there is room
/// for the first and the last frames' stay.
class FoldedTexts {
 public:
  struct Row {
    std::string text;
    FrameRanges frames;
  };

  /// `room` in bytes.
  explicit FoldedTexts(std::size_t room) : room_(room) {}

  /// Frames come by rising place in the job.
  void add(std::uint64_t index, const std::string& frame, const std::string& text);

  const std::vector<Row>& first() const noexcept { return first_; }
  /// Frames between the first and the last rows whose texts are left out.
  std::uint64_t leftOut() const noexcept { return leftOut_; }
  const std::deque<Row>& last() const noexcept { return last_; }

 private:
  std::size_t room_;
  std::vector<Row> first_;
  std::deque<Row> last_;
  /// By text, its row among the first.
  std::map<std::string, std::size_t> places_;
  std::size_t firstBytes_ = 0;
  std::size_t lastBytes_ = 0;
  std::uint64_t leftOut_ = 0;
};

}  // namespace vtlcmd::runner

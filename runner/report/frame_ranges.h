#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vtlcmd::runner {

/// Frames of which the same is told, in few words. Takes little memory, however many there are.
class FrameRanges {
 public:
  /// Frames come by rising place in the job; `frame` is the number as the user knows it.
  void add(std::uint64_t index, const std::string& frame);

  std::uint64_t count() const noexcept { return count_; }

  /// Like "1–7, 9, 12–48", as far as there are few ranges: "1, 3, 5 and 4,997 more". Neighbours in
  /// the job make a range.
  std::string text() const;

 private:
  struct Range {
    std::uint64_t end;
    std::string first;
    std::string last;
  };

  std::vector<Range> ranges_;
  std::uint64_t count_ = 0;
  /// Frames of no range that is kept.
  std::uint64_t more_ = 0;
};

/// A count with its thousands set apart: "10,000".
std::string groupedDigits(std::uint64_t count);

/// "1 frame", "10,000 frames".
std::string counted(std::uint64_t count, const std::string& noun);

}  // namespace vtlcmd::runner

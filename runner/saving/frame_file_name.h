#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

/// The name of a file in which {frame} stands for the frame's number, and {frame:04} for that of a
/// whole frame with zeros up to the given width, sign included.
class FrameFileName {
 public:
  /// Throws std::invalid_argument, which quotes it, for another form of the frame.
  explicit FrameFileName(std::string_view text);

  bool hasFrame() const noexcept { return !pieces_.empty(); }
  bool wantsWholeFrames() const;

  /// The name for a frame, which is whole where the name wants it.
  std::string at(double frame) const;

 private:
  /// What comes before a frame's number, and that number's width; 0 for the number as it is.
  struct Piece {
    std::string text;
    std::size_t width;
  };

  std::vector<Piece> pieces_;
  std::string rest_;
};

}  // namespace vtlcmd::runner

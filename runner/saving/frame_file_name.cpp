#include "saving/frame_file_name.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "text/library_text.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

constexpr std::string_view opening = "{frame";
constexpr std::size_t widest = 99;

/// Of what stands between "{frame" and "}".
std::size_t widthFrom(std::string_view form) {
  if (form.empty()) return 0;
  std::size_t width = 0;
  const bool isPadded = form.starts_with(":0");
  const char* const end = form.data() + form.size();
  if (isPadded && std::from_chars(form.data() + 2, end, width).ptr == end && width > 0 &&
      width <= widest)
    return width;
  throw std::invalid_argument(inQuotes(std::string(opening) + std::string(form) + "}") +
                              " is no form of the frame; {frame} and {frame:04} are");
}

std::string paddedText(double frame, std::size_t width) {
  // As many as the largest double has.
  char digits[310];
  const char* const end =
      std::to_chars(digits, digits + sizeof digits, std::abs(frame), std::chars_format::fixed, 0)
          .ptr;
  const std::string number(static_cast<const char*>(digits), end);
  const std::string sign = frame < 0 ? "-" : "";
  const std::size_t used = sign.size() + number.size();
  return sign + std::string(width - std::min(width, used), '0') + number;
}

}  // namespace

FrameFileName::FrameFileName(std::string_view text) {
  for (std::size_t open = 0; (open = text.find(opening)) != std::string_view::npos;) {
    const std::string_view behind = text.substr(open + opening.size());
    const std::size_t close = behind.find('}');
    if (close == std::string_view::npos)
      throw std::invalid_argument(inQuotes(text.substr(open)) + " has no '}'");
    pieces_.push_back({std::string(text.substr(0, open)), widthFrom(behind.substr(0, close))});
    text = behind.substr(close + 1);
  }
  rest_ = text;
}

bool FrameFileName::wantsWholeFrames() const {
  return std::any_of(pieces_.begin(), pieces_.end(),
                     [](const Piece& piece) { return piece.width > 0; });
}

std::string FrameFileName::at(double frame) const {
  std::string name;
  for (const Piece& piece : pieces_) {
    name += piece.text;
    name += piece.width == 0 ? shortestText(frame) : paddedText(frame, piece.width);
  }
  return name + rest_;
}

}  // namespace vtlcmd::runner

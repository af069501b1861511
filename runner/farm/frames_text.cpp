#include "farm/frames_text.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace vtlcmd::runner {
namespace {

/// How far from a step's end a number may be that means it, in steps.
constexpr double tolerance = 1e-7;

/// One fewer than any double needs, and so without the error of its last digit.
constexpr int digitsOfFraction = 15;

/// As short as possible, without exponent.
std::string numberText(double number) {
  // As long as the smallest double is without exponent.
  char digits[1100];
  char* const end = digits + sizeof digits;
  if (number != std::trunc(number)) {
    const char* stop =
        std::to_chars(digits, end, number, std::chars_format::scientific, digitsOfFraction - 1).ptr;
    std::from_chars(digits, stop, number);
  }
  return {digits, std::to_chars(digits, end, number, std::chars_format::fixed).ptr};
}

/// How many of the first frames are at equal distances.
std::size_t evenLength(std::span<const double> frames) {
  if (frames.size() < 3 || frames[1] == frames[0]) return 1;
  const double step = frames[1] - frames[0];
  std::size_t length = 2;
  while (length < frames.size()) {
    const double expected = frames[0] + static_cast<double>(length) * step;
    if (std::abs(frames[length] - expected) > tolerance * std::abs(step)) break;
    ++length;
  }
  return length < 3 ? 1 : length;
}

std::string rangeText(double first, double last, std::size_t steps) {
  const double step = std::abs(last - first) / static_cast<double>(steps);
  std::string text = numberText(first) + "-" + numberText(last);
  if (step != 1) text += "x" + numberText(step);
  return text;
}

}  // namespace

std::string framesText(std::span<const double> frames) {
  std::string text;
  while (!frames.empty()) {
    if (!text.empty()) text += ',';
    const std::size_t length = evenLength(frames);
    text +=
        length == 1 ? numberText(frames[0]) : rangeText(frames[0], frames[length - 1], length - 1);
    frames = frames.subspan(length);
  }
  return text;
}

}  // namespace vtlcmd::runner

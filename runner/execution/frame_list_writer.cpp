#include "execution/frame_list_writer.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace vtlcmd::runner {
namespace {

/// How far from a step's end a number may be that means it, in steps.
constexpr double evenTolerance = 1e-7;

/// One fewer than any double needs, and so without the error of its last digit.
constexpr int digitsOfFraction = 15;

/// As long as the smallest double is without exponent.
constexpr std::size_t mostCharacters = 1100;

/// The ways to write a list.
struct Notation {
  /// How many of the first frames make a range; 1 where none does.
  std::size_t (*rangeLength)(std::span<const double> frames);
  double (*step)(std::span<const double> range);
  std::string (*number)(double number);
};

/// As short as possible, without the exponent that a list can't have.
std::string numberText(double number) {
  char text[mostCharacters];
  return {text, std::to_chars(text, text + sizeof text, number, std::chars_format::fixed).ptr};
}

std::string plainNumberText(double number) {
  if (number == std::trunc(number)) return numberText(number);
  char text[mostCharacters];
  const char* const end = std::to_chars(text, text + sizeof text, number,
                                        std::chars_format::scientific, digitsOfFraction - 1)
                              .ptr;
  std::from_chars(text, end, number);
  return numberText(number);
}

double firstStep(std::span<const double> range) { return range[1] - range[0]; }

double meanStep(std::span<const double> range) {
  return std::abs(range.back() - range.front()) / static_cast<double>(range.size() - 1);
}

std::size_t exactLength(std::span<const double> frames) {
  if (frames.size() < 2) return 1;
  const double step = firstStep(frames);
  std::size_t length = 2;
  while (length < frames.size() && frames[length] == frames[0] + static_cast<double>(length) * step)
    ++length;
  // A range of two is shorter only where the step isn't written.
  return length > 2 || step == 1 ? length : 1;
}

std::size_t evenLength(std::span<const double> frames) {
  if (frames.size() < 3 || frames[1] == frames[0]) return 1;
  const double step = firstStep(frames);
  std::size_t length = 2;
  while (length < frames.size()) {
    const double expected = frames[0] + static_cast<double>(length) * step;
    if (std::abs(frames[length] - expected) > evenTolerance * std::abs(step)) break;
    ++length;
  }
  return length < 3 ? 1 : length;
}

std::string rangeText(std::span<const double> range, const Notation& notation) {
  std::string text = notation.number(range.front());
  if (range.size() == 1) return text;
  text += "-" + notation.number(range.back());
  const double step = notation.step(range);
  return step == 1 ? text : text + "x" + notation.number(step);
}

std::string listText(std::span<const double> frames, const Notation& notation) {
  std::string text;
  while (!frames.empty()) {
    const std::size_t length = notation.rangeLength(frames);
    text += (text.empty() ? "" : ",") + rangeText(frames.first(length), notation);
    frames = frames.subspan(length);
  }
  return text;
}

}  // namespace

std::string exactFramesText(std::span<const double> frames) {
  return listText(frames, {exactLength, firstStep, numberText});
}

std::string plainFramesText(std::span<const double> frames) {
  return listText(frames, {evenLength, meanStep, plainNumberText});
}

}  // namespace vtlcmd::runner

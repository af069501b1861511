#include "text/text_builder.h"

#include <array>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <concepts>
#include <locale>
#include <sstream>
#include <type_traits>

namespace vtlcmd {
namespace {

constexpr int streamPrecision = 6;

/// The longest are 64-bit integers, of twenty characters.
using Digits = std::array<char, 24>;

char* writeDigits(Digits& digits, double number) {
  return std::to_chars(digits.begin(), digits.end(), number, std::chars_format::general,
                       streamPrecision)
      .ptr;
}

template <std::integral Integer>
char* writeDigits(Digits& digits, Integer number) {
  return std::to_chars(digits.begin(), digits.end(), +number).ptr;
}

template <typename Number>
std::string streamText(Number number) {
  std::ostringstream stream;
  stream << number;
  return stream.str();
}

/// Streams of some platforms write the sign of a NaN and others don't; std::to_chars always does.
template <TextNumber Number>
bool isNan(Number number) {
  if constexpr (std::floating_point<Number>)
    return std::isnan(number);
  else
    return false;
}

}  // namespace

// std::to_chars gives a stream's bytes at a small part of its cost, but knows one locale and rounds
// to nearest alone.
TextBuilder::TextBuilder(std::size_t room)
    : plainNumbers_(std::locale() == std::locale::classic() && std::fegetround() == FE_TONEAREST) {
  text_.reserve(room);
}

template <TextNumber Number>
TextBuilder& TextBuilder::operator<<(Number number) {
  if (!plainNumbers_ || isNan(number)) return *this << streamText(number);
  Digits digits;
  const char* end = writeDigits(digits, number);
  text_.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
  return *this;
}

template TextBuilder& TextBuilder::operator<<(bool);
template TextBuilder& TextBuilder::operator<<(std::int16_t);
template TextBuilder& TextBuilder::operator<<(std::uint16_t);
template TextBuilder& TextBuilder::operator<<(std::int32_t);
template TextBuilder& TextBuilder::operator<<(std::uint32_t);
template TextBuilder& TextBuilder::operator<<(std::int64_t);
template TextBuilder& TextBuilder::operator<<(std::uint64_t);
template TextBuilder& TextBuilder::operator<<(float);
template TextBuilder& TextBuilder::operator<<(double);

}  // namespace vtlcmd

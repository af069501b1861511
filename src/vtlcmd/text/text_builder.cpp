#include "vtlcmd/text/text_builder.h"

#include <algorithm>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <concepts>
#include <locale>
#include <sstream>

namespace vtlcmd {
namespace {

constexpr int streamPrecision = 6;
/// The longest numbers are 64-bit integers.
constexpr std::size_t longestNumber = 20;

char* writeNumber(char* first, char* last, double number) {
  return std::to_chars(first, last, number, std::chars_format::general, streamPrecision).ptr;
}

template <std::integral Integer>
char* writeNumber(char* first, char* last, Integer number) {
  return std::to_chars(first, last, +number).ptr;
}

template <typename Number>
std::string streamText(Number number) {
  std::ostringstream stream;
  stream << number;
  return stream.str();
}

const std::locale& classicLocale = std::locale::classic();

}  // namespace

void TextBuilder::grow(std::size_t size) {
  buffer_.resize(std::max(2 * buffer_.size(), size_ + size));
}

// std::to_chars gives a stream's bytes at a small part of its cost, but knows one locale and rounds
// to nearest alone.
template <TextNumber Number>
TextBuilder& TextBuilder::operator<<(Number number) {
  if (!localeIsClassic_) localeIsClassic_ = std::locale() == classicLocale;
  bool isPlain = *localeIsClassic_;
  if constexpr (std::floating_point<Number>) {
    // Streams of some platforms write the sign of a NaN and others don't; std::to_chars always
    // does.
    isPlain &= std::fegetround() == FE_TONEAREST && !std::isnan(number);
  }
  if (!isPlain) return *this << streamText(number);
  char* first = roomFor(longestNumber);
  size_ += static_cast<std::size_t>(writeNumber(first, first + longestNumber, number) - first);
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

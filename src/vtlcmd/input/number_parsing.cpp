#include "vtlcmd/input/number_parsing.h"

#include <bit>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "vtlcmd/input/read_double.h"

namespace vtlcmd {
namespace {

static_assert(sizeof(long long) == sizeof(std::int64_t));
static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits == 53);
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<float>::digits == 24);

const char* skipSpace(const char* text) {
  while (std::isspace(static_cast<unsigned char>(*text)) != 0) ++text;
  return text;
}

bool nothingRead(const char* end, const char* text) { return end == nullptr || end == text; }

ParseStatus statusAt(const char* end) {
  return *skipSpace(end) == '\0' ? ParseStatus::ParseOk : ParseStatus::ParseTrailingText;
}

/// A wide integer that strtoll or strtoull read, checked and brought to T's width.
template <typename T, typename Wide>
std::optional<T> narrowInteger(Wide value, const char* text, const char* end, ParseStatus& status) {
  if (nothingRead(end, text)) {
    status = ParseStatus::ParseNoNumber;
    return std::nullopt;
  }
  if (errno == ERANGE || value < std::numeric_limits<T>::min() ||
      value > std::numeric_limits<T>::max()) {
    status = ParseStatus::ParseOutOfRange;
    return std::nullopt;
  }
  status = statusAt(end);
  return static_cast<T>(value);
}

template <SignedNumber T>
std::optional<T> parseCore(const char* text, ParseStatus& status) {
  char* end = nullptr;
  errno = 0;
  const long long value = std::strtoll(text, &end, 10);
  return narrowInteger<T>(value, text, end, status);
}

template <UnsignedNumber T>
std::optional<T> parseCore(const char* text, ParseStatus& status) {
  const char* digits = skipSpace(text);
  // strtoull would accept a minus and wrap the value.
  if (*digits == '-') {
    status = ParseStatus::ParseOutOfRange;
    return std::nullopt;
  }
  char* end = nullptr;
  errno = 0;
  const unsigned long long value = std::strtoull(digits, &end, 10);
  return narrowInteger<T>(value, digits, end, status);
}

/// In the order of magnitudes, also for a processor that takes subnormal numbers for zeros.
constexpr std::uint64_t magnitudeOf(double value) {
  return std::bit_cast<std::uint64_t>(value) & ~(std::uint64_t{1} << 63U);
}

/// The order of the tests is part of the contract.
template <FloatingNumber T>
ParseStatus statusOf(double value, const char* text, const char* end) {
  constexpr std::uint64_t largest = magnitudeOf(std::numeric_limits<T>::max());
  constexpr std::uint64_t smallestNormal = magnitudeOf(std::numeric_limits<T>::min());
  const std::uint64_t magnitude = magnitudeOf(value);
  if (errno == ERANGE) return ParseStatus::ParseOutOfRange;
  if (!std::isfinite(value)) return ParseStatus::ParseNoNumber;
  if (magnitude > largest) return ParseStatus::ParseOutOfRange;
  if (magnitude != 0 && magnitude < smallestNormal) return ParseStatus::ParseOutOfRange;
  if (nothingRead(end, text)) return ParseStatus::ParseNoNumber;
  return statusAt(end);
}

/// To nearest, to even between two, whatever the rounding mode: the bits that a float hasn't are
/// rounded away before. `value` is zero or in the range of normal floats.
template <FloatingNumber T>
T narrowed(double value) {
  if constexpr (std::same_as<T, float>) {
    constexpr std::uint64_t surplus = (std::uint64_t{1} << 29U) - 1;
    auto bits = std::bit_cast<std::uint64_t>(value);
    bits += surplus / 2 + (bits >> 29U & 1U);
    return static_cast<float>(std::bit_cast<double>(bits & ~surplus));
  } else {
    return value;
  }
}

template <FloatingNumber T>
std::optional<T> parseCore(const char* text, ParseStatus& status) {
  const char* end = nullptr;
  errno = 0;
  const double value = readDouble(text, end);
  status = statusOf<T>(value, text, end);
  if (status != ParseStatus::ParseOk && status != ParseStatus::ParseTrailingText) {
    return std::nullopt;
  }
  return narrowed<T>(value);
}

}  // namespace

template <Number T>
std::optional<T> parseNumber(const char* text, ParseStatus& status) {
  if (text == nullptr) {
    status = ParseStatus::ParseNoNumber;
    return std::nullopt;
  }
  return parseCore<T>(text, status);
}

template std::optional<std::int32_t> parseNumber(const char*, ParseStatus&);
template std::optional<std::uint32_t> parseNumber(const char*, ParseStatus&);
template std::optional<std::int64_t> parseNumber(const char*, ParseStatus&);
template std::optional<std::uint64_t> parseNumber(const char*, ParseStatus&);
template std::optional<float> parseNumber(const char*, ParseStatus&);
template std::optional<double> parseNumber(const char*, ParseStatus&);

}  // namespace vtlcmd

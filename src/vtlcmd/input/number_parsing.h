#pragma once

#include <concepts>
#include <cstdint>
#include <optional>

namespace vtlcmd {

enum class ParseStatus : int {
  /// A value, and nothing but white space behind it.
  ParseOk = 0,
  /// A value, but other characters stand behind it.
  ParseTrailingText = 1,
  /// No number could be read; an infinity or a NaN is no number either.
  ParseNoNumber = 2,
  /// A number outside the type's range. Subnormal values are outside.
  ParseOutOfRange = 3,
};

template <typename T>
concept SignedNumber = std::same_as<T, std::int32_t> || std::same_as<T, std::int64_t>;
template <typename T>
concept UnsignedNumber = std::same_as<T, std::uint32_t> || std::same_as<T, std::uint64_t>;
template <typename T>
concept FloatingNumber = std::same_as<T, float> || std::same_as<T, double>;
template <typename T>
concept Number = SignedNumber<T> || UnsignedNumber<T> || FloatingNumber<T>;

/// Reads one number from a terminated text, which may be null. White space may surround it.
/// Integers are decimal with an optional sign, the minus only for signed types; floating texts are
/// those of the platform's `strtod`, hexadecimal ones included, without infinities and NaN, with a
/// 64-bit value that is zero or between the smallest normal and the largest finite value of T.
///
/// The value is there for ParseOk and ParseTrailingText. `status` is always set. Touches `errno`;
/// the decimal point is that of the process's locale.
template <Number T>
std::optional<T> parseNumber(const char* text, ParseStatus& status);

}  // namespace vtlcmd

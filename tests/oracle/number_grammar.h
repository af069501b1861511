#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "big_integer.h"
#include "wide_integer.h"

namespace vtlcmd::oracle {

/// One of the six white-space bytes of the C locale.
bool isSpace(char byte);

/// The position of the first byte from `from` on that is no white space.
std::size_t skipSpace(std::string_view text, std::size_t from);

/// The number that stands at the beginning of a text, exactly.
struct IntegerText {
  bool negative;
  /// Saturates at 2^64, which is beyond every type.
  Uint128 magnitude;
  /// Behind the last digit.
  std::size_t end;
};

/// White space, a sign, decimal digits; nothing when there is no digit.
std::optional<IntegerText> readInteger(std::string_view text);

struct FloatText {
  bool negative;
  BigInteger digits;
  /// The value is digits * base^exponent; the base is 10, or 2 for hexadecimal text.
  bool hexadecimal;
  /// Exact below a magnitude of 10^15, then saturated: no text has as many digits as could bring
  /// such a value back into a format's range.
  std::int64_t exponent;
  std::size_t end;
};

/// White space, a sign, then decimal digits with a point and an exponent, or "0x" and hexadecimal
/// digits with a point and a binary exponent. An exponent without digits isn't part of the number,
/// nor is an "x" without digits. Words for infinity and not-a-number read as nothing.
std::optional<FloatText> readFloat(std::string_view text);

}  // namespace vtlcmd::oracle

#pragma once

#include <cstdint>

#include "wide_integer.h"

namespace vtlcmd::oracle {

// Binary floating-point formats and their arithmetic, done in integers alone: a value goes through
// as its bit pattern, and every operation rounds once, to nearest, ties to even.

struct Binary32 {
  using Value = float;
  using Bits = std::uint32_t;
  static constexpr int precision = 24;
  /// The exponent of the lowest bit of the smallest subnormal, and of the largest finite value.
  static constexpr int minExponent = -149;
  static constexpr int maxExponent = 104;
};

struct Binary64 {
  using Value = double;
  using Bits = std::uint64_t;
  static constexpr int precision = 53;
  static constexpr int minExponent = -1074;
  static constexpr int maxExponent = 971;
};

/// significand * 2^exponent, with a sign of its own so that zeros have one.
struct Scaled {
  bool negative;
  Uint128 significand;
  std::int64_t exponent;
  /// The exact value is greater than this one, by less than one unit of the significand.
  bool inexact = false;
};

/// Rounds to at most `precision` bits, whatever the exponent. An inexact argument must have more
/// bits than that.
Scaled roundedTo(int precision, const Scaled& value);

/// Rounds to the format: gradual underflow, infinity from overflow. As above for an inexact value.
template <typename Format>
typename Format::Bits pack(const Scaled& value);

/// The value of a finite pattern.
template <typename Format>
Scaled unpack(typename Format::Bits bits);

template <typename Format>
bool isNan(typename Format::Bits bits);

/// Strict; false when either is not a number.
template <typename Format>
bool isLess(typename Format::Bits a, typename Format::Bits b);

/// The sum. Of operands that are no numbers the first one comes back, quiet.
template <typename Format>
typename Format::Bits add(typename Format::Bits a, typename Format::Bits b);

/// The quotient by a positive finite divisor.
template <typename Format>
typename Format::Bits divide(typename Format::Bits dividend, typename Format::Bits divisor);

template <typename Format>
typename Format::Bits fromInteger(Int128 value);

/// Truncates a finite value of magnitude below 2^127 towards zero.
template <typename Format>
Int128 toInteger(typename Format::Bits bits);

}  // namespace vtlcmd::oracle

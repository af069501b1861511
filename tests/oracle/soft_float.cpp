#include "soft_float.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace vtlcmd::oracle {
namespace {

template <typename Format>
using Bits = typename Format::Bits;

template <typename Format>
constexpr Bits<Format> hiddenBit = Bits<Format>{1} << (Format::precision - 1);
template <typename Format>
constexpr Bits<Format> signBit = Bits<Format>{1} << (8 * sizeof(Bits<Format>) - 1);
template <typename Format>
constexpr Bits<Format> quietBit = hiddenBit<Format> >> 1;
template <typename Format>
constexpr Bits<Format> infinity = signBit<Format> - hiddenBit<Format>;

template <typename Format>
constexpr Bits<Format> magnitudeOf(Bits<Format> bits) {
  return bits & ~signBit<Format>;
}

template <typename Format>
constexpr bool isFinite(Bits<Format> bits) {
  return magnitudeOf<Format>(bits) < infinity<Format>;
}

int bitWidth(Uint128 value) {
  const auto high = static_cast<std::uint64_t>(value >> 64);
  return static_cast<int>(high != 0 ? 64 + std::bit_width(high)
                                    : std::bit_width(static_cast<std::uint64_t>(value)));
}

Uint128 shiftedRight(Uint128 value, std::int64_t bits, bool inexact) {
  if (bits >= 128) return 0;
  const Uint128 quotient = value >> bits;
  const Uint128 rest = value - (quotient << bits);
  const Uint128 half = Uint128{1} << (bits - 1);
  const bool up = rest != half ? rest > half : inexact || quotient % 2 == 1;
  return quotient + (up ? 1 : 0);
}

Scaled withoutLowBits(std::int64_t count, const Scaled& value) {
  if (count <= 0) return value;
  return {value.negative, shiftedRight(value.significand, count, value.inexact),
          value.exponent + count};
}

}  // namespace

Scaled roundedTo(int precision, const Scaled& value) {
  const Scaled once = withoutLowBits(bitWidth(value.significand) - precision, value);
  // Rounding up to a power of two takes one bit more, and a zero goes.
  return withoutLowBits(bitWidth(once.significand) - precision, once);
}

template <typename Format>
Bits<Format> pack(const Scaled& value) {
  const Bits<Format> sign = value.negative ? signBit<Format> : 0;
  if (value.significand == 0) return sign;
  const std::int64_t exponent = std::max<std::int64_t>(
      value.exponent + bitWidth(value.significand) - Format::precision, Format::minExponent);
  if (exponent > Format::maxExponent) return sign | infinity<Format>;
  const Scaled rounded = withoutLowBits(exponent - value.exponent, value);
  const auto significand =
      static_cast<Bits<Format>>(rounded.significand << (rounded.exponent - exponent));
  // The hidden bit of a normal significand adds the 1 that its biased exponent has over this one,
  // and a significand that rounded up to the next power of two adds another: up to infinity.
  const auto biased = static_cast<Bits<Format>>(exponent - Format::minExponent);
  return sign | ((biased << (Format::precision - 1)) + significand);
}

template <typename Format>
Scaled unpack(Bits<Format> bits) {
  const Bits<Format> magnitude = magnitudeOf<Format>(bits);
  const Bits<Format> biased = magnitude >> (Format::precision - 1);
  const Bits<Format> fraction = magnitude % hiddenBit<Format>;
  const bool negative = magnitude != bits;
  if (biased == 0) return {negative, fraction, Format::minExponent};
  return {negative, fraction | hiddenBit<Format>,
          Format::minExponent + static_cast<std::int64_t>(biased) - 1};
}

template <typename Format>
bool isNan(Bits<Format> bits) {
  return magnitudeOf<Format>(bits) > infinity<Format>;
}

template <typename Format>
bool isLess(Bits<Format> a, Bits<Format> b) {
  if (isNan<Format>(a) || isNan<Format>(b)) return false;
  // Patterns of one sign are ordered as integers are.
  const auto rank = [](Bits<Format> bits) {
    const auto magnitude = static_cast<Int128>(magnitudeOf<Format>(bits));
    return bits < signBit<Format> ? magnitude : -magnitude;
  };
  return rank(a) < rank(b);
}

template <typename Format>
Bits<Format> add(Bits<Format> a, Bits<Format> b) {
  if (isNan<Format>(a)) return a | quietBit<Format>;
  if (isNan<Format>(b)) return b | quietBit<Format>;
  if (!isFinite<Format>(a) && !isFinite<Format>(b) && a != b) {
    return signBit<Format> | infinity<Format> | quietBit<Format>;
  }
  if (!isFinite<Format>(a)) return a;
  if (!isFinite<Format>(b)) return b;

  Scaled high = unpack<Format>(a);
  Scaled low = unpack<Format>(b);
  if (high.exponent < low.exponent) std::swap(high, low);
  // Widen the one, then cut off what of the other stands lower still; 64 bits are enough for the
  // cut to lie far behind the rounding place.
  const std::int64_t widened = std::min<std::int64_t>(high.exponent - low.exponent, 64);
  high.significand <<= widened;
  high.exponent -= widened;
  const std::int64_t cut = std::min<std::int64_t>(high.exponent - low.exponent, 127);
  const Uint128 kept = low.significand >> cut;
  const bool inexact = (kept << cut) != low.significand;

  if (high.negative == low.negative) {
    return pack<Format>({high.negative, high.significand + kept, high.exponent, inexact});
  }
  if (high.significand == kept && !inexact) return 0;
  if (high.significand < kept) {
    return pack<Format>({low.negative, kept - high.significand, high.exponent});
  }
  return pack<Format>(
      {high.negative, high.significand - kept - (inexact ? 1 : 0), high.exponent, inexact});
}

template <typename Format>
Bits<Format> divide(Bits<Format> dividend, Bits<Format> divisor) {
  if (isNan<Format>(dividend)) return dividend | quietBit<Format>;
  if (!isFinite<Format>(dividend)) return dividend;
  Scaled left = unpack<Format>(dividend);
  const Scaled right = unpack<Format>(divisor);
  const int room = 127 - bitWidth(left.significand);
  left.significand <<= room;
  left.exponent -= room;
  const Uint128 quotient = left.significand / right.significand;
  return pack<Format>({left.negative, quotient, left.exponent - right.exponent,
                       quotient * right.significand != left.significand});
}

template <typename Format>
Bits<Format> fromInteger(Int128 value) {
  const bool negative = value < 0;
  return pack<Format>({negative, static_cast<Uint128>(negative ? -value : value), 0});
}

template <typename Format>
Int128 toInteger(Bits<Format> bits) {
  const Scaled value = unpack<Format>(bits);
  const Uint128 magnitude = value.exponent >= 0
                                ? value.significand << value.exponent
                                : value.significand >> std::min<std::int64_t>(-value.exponent, 127);
  return value.negative ? -static_cast<Int128>(magnitude) : static_cast<Int128>(magnitude);
}

template Binary32::Bits pack<Binary32>(const Scaled&);
template Binary64::Bits pack<Binary64>(const Scaled&);
template Scaled unpack<Binary32>(Binary32::Bits);
template Scaled unpack<Binary64>(Binary64::Bits);
template bool isNan<Binary32>(Binary32::Bits);
template bool isNan<Binary64>(Binary64::Bits);
template bool isLess<Binary32>(Binary32::Bits, Binary32::Bits);
template bool isLess<Binary64>(Binary64::Bits, Binary64::Bits);
template Binary32::Bits add<Binary32>(Binary32::Bits, Binary32::Bits);
template Binary64::Bits add<Binary64>(Binary64::Bits, Binary64::Bits);
template Binary32::Bits divide<Binary32>(Binary32::Bits, Binary32::Bits);
template Binary64::Bits divide<Binary64>(Binary64::Bits, Binary64::Bits);
template Binary32::Bits fromInteger<Binary32>(Int128);
template Binary64::Bits fromInteger<Binary64>(Int128);
template Int128 toInteger<Binary32>(Binary32::Bits);
template Int128 toInteger<Binary64>(Binary64::Bits);

}  // namespace vtlcmd::oracle

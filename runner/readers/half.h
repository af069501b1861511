#pragma once

#include <bit>
#include <cstdint>

namespace vtlcmd::runner {

/// A floating number of 16 bits: a sign, 5 bits of exponent, 10 of fraction.
struct Half {
  std::uint16_t bits;

  /// The same value; a NaN keeps its fraction.
  explicit operator float() const {
    const std::uint32_t sign = (bits & 0x8000U) << 16U;
    const std::uint32_t exponent = (bits >> 10U) & 0x1FU;
    const std::uint32_t fraction = bits & 0x3FFU;
    if (exponent == 0) {
      // A zero or a subnormal number: so many times the smallest one.
      const float magnitude = static_cast<float>(fraction) * 0x1p-24F;
      return std::bit_cast<float>(std::bit_cast<std::uint32_t>(magnitude) | sign);
    }
    const std::uint32_t wideExponent = exponent == 0x1F ? 0xFFU : exponent + 127 - 15;
    return std::bit_cast<float>(sign | wideExponent << 23U | fraction << 13U);
  }
};

}  // namespace vtlcmd::runner

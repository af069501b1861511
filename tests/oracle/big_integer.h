#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vtlcmd::oracle {

/// A natural number of any size. Made for being evidently right, not for speed.
class BigInteger {
 public:
  BigInteger() = default;
  explicit BigInteger(std::uint64_t value);

  /// *this = *this * factor + addend
  void multiplyAdd(std::uint32_t factor, std::uint32_t addend);
  void multiplyByPowerOfFive(std::uint64_t exponent);
  void shiftLeft(std::size_t bits);
  /// `other` must not be greater.
  void subtract(const BigInteger& other);
  /// Divides in place and returns the remainder; `divisor` must not be 0.
  std::uint32_t divideBy(std::uint32_t divisor);

  bool isZero() const { return limbs_.empty(); }
  /// The position of the highest set bit, counted from 1; 0 for zero.
  std::size_t bitLength() const;
  std::string toDecimal() const;

  std::strong_ordering operator<=>(const BigInteger& other) const;
  bool operator==(const BigInteger& other) const = default;

 private:
  void dropLeadingZeros();

  /// Base 2^32, lowest first, without a zero at the end.
  std::vector<std::uint32_t> limbs_;
};

/// The first 64 bits of a positive quotient: `significand` * 2^`exponent`, whose top bit is set, is
/// the quotient or, when `inexact`, less than one unit of the significand below it.
struct LeadingBits {
  std::uint64_t significand;
  std::int64_t exponent;
  bool inexact;
};

/// Neither argument may be zero.
LeadingBits leadingBits(BigInteger numerator, BigInteger denominator);

}  // namespace vtlcmd::oracle

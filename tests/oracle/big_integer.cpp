#include "big_integer.h"

#include <algorithm>
#include <bit>

namespace vtlcmd::oracle {
namespace {

constexpr std::size_t limbBits = 32;

constexpr std::uint32_t lowHalf(std::uint64_t value) { return static_cast<std::uint32_t>(value); }

}  // namespace

BigInteger::BigInteger(std::uint64_t value) : limbs_{lowHalf(value), lowHalf(value >> limbBits)} {
  dropLeadingZeros();
}

void BigInteger::multiplyAdd(std::uint32_t factor, std::uint32_t addend) {
  std::uint64_t carry = addend;
  for (std::uint32_t& limb : limbs_) {
    carry += std::uint64_t{limb} * factor;
    limb = lowHalf(carry);
    carry >>= limbBits;
  }
  if (carry != 0) limbs_.push_back(lowHalf(carry));
  dropLeadingZeros();
}

void BigInteger::multiplyByPowerOfFive(std::uint64_t exponent) {
  constexpr std::uint64_t step = 13;  // 5^13 is the greatest power of five below 2^32.
  constexpr std::uint32_t fiveToStep = 1220703125;
  for (; exponent >= step; exponent -= step) multiplyAdd(fiveToStep, 0);
  for (; exponent > 0; --exponent) multiplyAdd(5, 0);
}

void BigInteger::shiftLeft(std::size_t bits) {
  if (isZero()) return;
  multiplyAdd(std::uint32_t{1} << bits % limbBits, 0);
  limbs_.insert(limbs_.begin(), bits / limbBits, 0);
}

void BigInteger::subtract(const BigInteger& other) {
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < limbs_.size() && (i < other.limbs_.size() || borrow != 0); ++i) {
    const std::uint64_t taken = borrow + (i < other.limbs_.size() ? other.limbs_[i] : 0);
    borrow = limbs_[i] < taken ? 1 : 0;
    limbs_[i] = lowHalf(limbs_[i] - taken);
  }
  dropLeadingZeros();
}

std::uint32_t BigInteger::divideBy(std::uint32_t divisor) {
  std::uint64_t remainder = 0;
  for (std::size_t i = limbs_.size(); i-- > 0;) {
    const std::uint64_t dividend = (remainder << limbBits) | limbs_[i];
    limbs_[i] = lowHalf(dividend / divisor);
    remainder = dividend % divisor;
  }
  dropLeadingZeros();
  return lowHalf(remainder);
}

std::size_t BigInteger::bitLength() const {
  if (isZero()) return 0;
  return limbs_.size() * limbBits - static_cast<std::size_t>(std::countl_zero(limbs_.back()));
}

std::string BigInteger::toDecimal() const {
  if (isZero()) return "0";
  std::string reversed;
  for (BigInteger rest = *this; !rest.isZero();) {
    std::uint32_t digits = rest.divideBy(1'000'000'000);
    for (int i = 0; i < 9; ++i, digits /= 10) {
      reversed.push_back(static_cast<char>('0' + digits % 10));
    }
  }
  while (reversed.back() == '0') reversed.pop_back();
  return {reversed.rbegin(), reversed.rend()};
}

std::strong_ordering BigInteger::operator<=>(const BigInteger& other) const {
  if (limbs_.size() != other.limbs_.size()) return limbs_.size() <=> other.limbs_.size();
  return std::lexicographical_compare_three_way(limbs_.rbegin(), limbs_.rend(),
                                                other.limbs_.rbegin(), other.limbs_.rend());
}

void BigInteger::dropLeadingZeros() {
  while (!limbs_.empty() && limbs_.back() == 0) limbs_.pop_back();
}

LeadingBits leadingBits(BigInteger numerator, BigInteger denominator) {
  const std::size_t numeratorBits = numerator.bitLength();
  const std::size_t denominatorBits = denominator.bitLength();
  std::int64_t exponent =
      static_cast<std::int64_t>(numeratorBits) - static_cast<std::int64_t>(denominatorBits);
  if (numeratorBits < denominatorBits) {
    numerator.shiftLeft(denominatorBits - numeratorBits);
  } else {
    denominator.shiftLeft(numeratorBits - denominatorBits);
  }
  if (numerator < denominator) {
    numerator.shiftLeft(1);
    --exponent;
  }
  // Long division by hand: from here on the quotient is at least 1 and below 2.
  std::uint64_t significand = 0;
  for (int bit = 0; bit < 64; ++bit) {
    significand <<= 1;
    if (numerator >= denominator) {
      numerator.subtract(denominator);
      significand |= 1;
    }
    numerator.shiftLeft(1);
  }
  return {significand, exponent - 63, !numerator.isZero()};
}

}  // namespace vtlcmd::oracle

#include "parse_model.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <limits>
#include <type_traits>
#include <utility>

#include "number_grammar.h"
#include "soft_float.h"

namespace vtlcmd::oracle {
namespace {

template <typename T>
Parsed<T> valueUpTo(std::size_t end, std::string_view text, T value) {
  const bool whole = skipSpace(text, end) == text.size();
  return {whole ? Outcome::value : Outcome::trailingText, value};
}

template <std::integral T>
Parsed<T> parseInteger(std::string_view text) {
  if constexpr (std::unsigned_integral<T>) {
    // The sign alone decides, also in front of a zero or of no number at all.
    const std::size_t first = skipSpace(text, 0);
    if (first < text.size() && text[first] == '-') return {Outcome::outOfRange, {}};
  }
  const auto number = readInteger(text);
  if (!number) return {Outcome::noNumber, {}};
  const auto magnitude = static_cast<Int128>(number->magnitude);
  const Int128 value = number->negative ? -magnitude : magnitude;
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
    return {Outcome::outOfRange, {}};
  }
  return valueUpTo(number->end, text, static_cast<T>(value));
}

/// Powers of ten, and of two, that lie far outside the format's range.
constexpr std::int64_t decimalReach = 400;
constexpr std::int64_t binaryReach = 1200;

/// The leading bits of a number other than zero, more than any format has; nothing when it is so
/// far from the formats' range that its digits don't matter.
std::optional<Scaled> inReach(FloatText number) {
  const auto bits = static_cast<std::int64_t>(number.digits.bitLength());
  const std::int64_t reach = number.hexadecimal ? binaryReach : decimalReach;
  // 0.30 is just less, 0.31 just more than the decimal digits that one bit is worth.
  const std::int64_t leastDigits = number.hexadecimal ? bits : (bits - 1) * 30 / 100;
  const std::int64_t mostDigits = number.hexadecimal ? bits : bits * 31 / 100 + 1;
  if (number.exponent + leastDigits > reach || number.exponent + mostDigits < -reach) {
    return std::nullopt;
  }
  BigInteger denominator(1);
  if (!number.hexadecimal) {
    // 10^e is 5^e * 2^e, and powers of two need no digits.
    if (number.exponent < 0) {
      denominator.multiplyByPowerOfFive(static_cast<std::uint64_t>(-number.exponent));
    } else {
      number.digits.multiplyByPowerOfFive(static_cast<std::uint64_t>(number.exponent));
    }
  }
  const LeadingBits leading = leadingBits(std::move(number.digits), std::move(denominator));
  return Scaled{number.negative, leading.significand, leading.exponent + number.exponent,
                leading.inexact};
}

template <typename Format>
Binary64::Bits widened(typename Format::Bits bits) {
  return pack<Binary64>(unpack<Format>(bits));
}

template <typename Format>
constexpr typename Format::Bits smallestNormal =
    typename Format::Bits{1} << (Format::precision - 1);
template <typename Format>
constexpr
    typename Format::Bits largestFinite = (~typename Format::Bits{0} >> 1) - smallestNormal<Format>;

template <typename Format>
Parsed<typename Format::Value> parseFloat(std::string_view text) {
  using Value = typename Format::Value;
  // Infinities and not-a-numbers are no numbers, however they are spelt and whatever follows: as
  // no digit starts them, they read as nothing.
  auto number = readFloat(text);
  if (!number) return {Outcome::noNumber, {}};
  const std::size_t end = number->end;
  Scaled exact{number->negative, 0, 0};
  if (!number->digits.isZero()) {
    const auto near = inReach(std::move(*number));
    if (!near) return {Outcome::outOfRange, {}};
    exact = *near;
  }
  const Binary64::Bits bits = pack<Binary64>(exact);
  const Binary64::Bits magnitude = bits & (~Binary64::Bits{0} >> 1);
  if (exact.significand != 0 && magnitude == 0) return {Outcome::outOfRange, {}};
  const bool inRange = magnitude == 0 || (magnitude >= widened<Format>(smallestNormal<Format>) &&
                                          magnitude <= widened<Format>(largestFinite<Format>));
  if (!inRange) return {Outcome::outOfRange, {}};
  return valueUpTo(end, text, std::bit_cast<Value>(pack<Format>(unpack<Binary64>(bits))));
}

}  // namespace

template <typename T>
Parsed<T> parseModel(std::string_view text) {
  if constexpr (std::integral<T>) {
    return parseInteger<T>(text);
  } else {
    return parseFloat<std::conditional_t<std::same_as<T, float>, Binary32, Binary64>>(text);
  }
}

template Parsed<std::int32_t> parseModel(std::string_view);
template Parsed<std::uint32_t> parseModel(std::string_view);
template Parsed<std::int64_t> parseModel(std::string_view);
template Parsed<std::uint64_t> parseModel(std::string_view);
template Parsed<float> parseModel(std::string_view);
template Parsed<double> parseModel(std::string_view);

}  // namespace vtlcmd::oracle

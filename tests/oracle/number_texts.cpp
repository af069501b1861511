#include "number_texts.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "exact_decimal.h"
#include "soft_float.h"

namespace vtlcmd::oracle {
namespace {

constexpr std::string_view decimalDigits = "0123456789";
constexpr std::string_view hexadecimalDigits = "0123456789abcdefABCDEF";

/// significand * 2^exponent
struct BinaryNumber {
  std::uint64_t significand;
  std::int64_t exponent;
};

constexpr std::uint64_t ones(int count) { return (std::uint64_t{1} << count) - 1; }

constexpr BinaryNumber integerLimits[]{
    {0, 0},  {ones(31), 0},          {1, 31}, {ones(32), 0}, {1, 32}, {ones(63), 0},
    {1, 63}, {~std::uint64_t{0}, 0}, {1, 64},
};

constexpr BinaryNumber floatingLimits[]{
    {ones(53), 971},    // largest double
    {ones(54), 970},    // half-way to the next power of two
    {1, -1022},         // smallest normal double
    {ones(54), -1076},  // half-way to it in 53 bits, and in subnormal ones
    {ones(53), -1075},
    {ones(52), -1074},  // largest and smallest subnormal double, and half of that
    {1, -1074},
    {1, -1075},
    {ones(24), 104},  // largest float; the double above it, and half-way there
    {(ones(24) << 29) + 1, 75},
    {(ones(24) << 30) + 1, 74},
    {ones(25), 103},  // half-way to the next power of two
    {1, -126},        // smallest normal float; the double below it, and half-way there
    {ones(53), -179},
    {ones(54), -180},
    {ones(23), -149},  // largest and smallest subnormal float
    {1, -149},
};

std::string sign(RandomSource& random) {
  static constexpr std::string_view signs[]{"", "", "", "+", "-", "-"};
  return std::string(random.pick(signs));
}

std::string exponentText(RandomSource& random, char letter, std::int64_t exponent) {
  std::string text(1, random.oneIn(4) ? static_cast<char>(letter - 'a' + 'A') : letter);
  if (exponent < 0) {
    text += '-';
  } else if (random.oneIn(3)) {
    text += '+';
  }
  if (random.oneIn(10)) text.append(random.below(4), '0');
  return text + std::to_string(exponent < 0 ? -exponent : exponent);
}

/// One of the many spellings of one value: any place of the point, with an exponent to match it.
std::string spelled(RandomSource& random, ExactDecimal number) {
  std::string& digits = number.digits;
  if (random.oneIn(10)) digits.insert(0, random.below(4), '0');
  std::int64_t exponent = number.exponent;
  if (random.oneIn(3) && exponent > -1200 && exponent < 400) {
    // No exponent at all: zeros up to the point.
    const auto missing = static_cast<std::size_t>(
        std::max<std::int64_t>(-exponent - static_cast<std::int64_t>(digits.size()), 0));
    digits.insert(0, missing, '0');
    if (exponent > 0) digits.append(static_cast<std::size_t>(exponent), '0');
    if (exponent < 0) digits.insert(digits.size() - static_cast<std::size_t>(-exponent), 1, '.');
    return sign(random) + digits;
  }
  if (!random.oneIn(3)) {
    const std::size_t behindPoint = random.below(digits.size() + 1);
    digits.insert(digits.size() - behindPoint, 1, '.');
    exponent += static_cast<std::int64_t>(behindPoint);
  }
  return sign(random) + digits + exponentText(random, 'e', exponent);
}

/// The text of the digits with a little more or less behind them, at times far behind.
void addTail(RandomSource& random, ExactDecimal& number) {
  const std::uint64_t direction = random.below(3);
  if (direction == 0) return;
  const std::size_t distance = random.below(random.oneIn(4) ? 40 : 3);
  if (direction == 1) {
    number.digits.append(distance, '0') += '1';
  } else {
    decrement(number.digits);
    number.digits.append(distance + 1, '9');
  }
  number.exponent -= static_cast<std::int64_t>(distance) + 1;
}

template <typename Format>
BinaryNumber half(RandomSource& random) {
  const std::uint64_t lowest = std::uint64_t{1} << (Format::precision - 1);
  const std::uint64_t significand = lowest + random.below(lowest);
  // Near 0 the digits are few; over the whole range they are up to several hundred.
  const std::int64_t exponent = random.oneIn(2)
                                    ? random.between(-Format::precision - 10, 10)
                                    : random.between(Format::minExponent, Format::maxExponent);
  return {2 * significand + 1, exponent - 1};
}

BinaryNumber anyHalf(RandomSource& random) {
  return random.oneIn(2) ? half<Binary32>(random) : half<Binary64>(random);
}

std::string hexadecimalText(std::uint64_t value) {
  std::string reversed;
  for (; value != 0; value /= 16) reversed += hexadecimalDigits[value % 16];
  return {reversed.rbegin(), reversed.rend()};
}

/// Exponents that matter to either format, most of them to both.
std::int64_t binaryExponent(RandomSource& random) {
  return random.oneIn(3) ? random.between(-1100, 1100) : random.between(-160, 140);
}

}  // namespace

std::string randomString(RandomSource& random, std::size_t length, std::string_view alphabet) {
  std::string text(length, '\0');
  for (char& byte : text) byte = random.pick(alphabet);
  return text;
}

std::string integer(RandomSource& random) {
  return sign(random) + std::to_string(random.bits() >> random.below(64));
}

std::string integerLimit(RandomSource& random) {
  const BinaryNumber& limit = random.pick(integerLimits);
  std::string digits = exactDecimal(limit.significand, limit.exponent).digits;
  if (random.oneIn(3)) increment(digits);
  if (random.oneIn(3) && digits != "0") decrement(digits);
  if (random.oneIn(10)) digits.insert(0, random.below(30), '0');
  return sign(random) + digits;
}

std::string decimal(RandomSource& random) {
  const auto count = static_cast<std::int64_t>(1 + random.below(random.oneIn(3) ? 25 : 8));
  const std::int64_t reach = random.oneIn(4) ? 330 : random.oneIn(2) ? 45 : 5;
  return spelled(random, {randomString(random, static_cast<std::size_t>(count), decimalDigits),
                          random.between(-reach, reach) - count});
}

std::string decimalLimit(RandomSource& random) {
  const BinaryNumber& limit = random.pick(floatingLimits);
  ExactDecimal number = exactDecimal(limit.significand, limit.exponent);
  if (!random.oneIn(4)) number = truncated(std::move(number), 1 + random.below(40));
  if (random.oneIn(3)) increment(number.digits);
  if (random.oneIn(3)) decrement(number.digits);
  return spelled(random, std::move(number));
}

std::string decimalHalf(RandomSource& random) {
  const BinaryNumber number = anyHalf(random);
  ExactDecimal exact = exactDecimal(number.significand, number.exponent);
  addTail(random, exact);
  return spelled(random, std::move(exact));
}

std::string hexadecimal(RandomSource& random) {
  std::string digits =
      randomString(random, 1 + random.below(random.oneIn(3) ? 40 : 14), hexadecimalDigits);
  if (!random.oneIn(3)) digits.insert(random.below(digits.size() + 1), 1, '.');
  std::string text = sign(random) + (random.oneIn(4) ? "0X" : "0x") + digits;
  if (!random.oneIn(5)) text += exponentText(random, 'p', binaryExponent(random));
  return text;
}

std::string hexadecimalHalf(RandomSource& random) {
  BinaryNumber number = random.oneIn(3) ? random.pick(floatingLimits) : anyHalf(random);
  if (random.oneIn(4) && number.significand > 1) --number.significand;
  std::string digits = hexadecimalText(number.significand);
  const std::size_t behind = random.below(4);
  if (behind != 0) {
    digits.append(behind, '0');
    if (random.oneIn(2)) digits.back() = '1';
  }
  const std::size_t behindPoint = random.below(digits.size() + 1);
  digits.insert(digits.size() - behindPoint, 1, '.');
  const auto moved =
      4 * (static_cast<std::int64_t>(behindPoint) - static_cast<std::int64_t>(behind));
  return sign(random) + "0x" + digits + exponentText(random, 'p', number.exponent + moved);
}

std::string longNumber(RandomSource& random) {
  const std::size_t count = 100 + random.below(4901);
  const auto length = static_cast<std::int64_t>(count);
  switch (random.below(4)) {
    case 0:
      return sign(random) + std::string(count, '0') + std::to_string(random.bits());
    case 1:
      return sign(random) + "0." + std::string(count, '0') + "1" +
             exponentText(random, 'e', length + random.between(-330, 330));
    case 2: {
      // Far behind a half-way point one digit decides.
      const BinaryNumber number = anyHalf(random);
      ExactDecimal exact = exactDecimal(number.significand, number.exponent);
      exact.digits.append(count, '0') += random.oneIn(2) ? '0' : '1';
      exact.exponent -= length + 1;
      return spelled(random, std::move(exact));
    }
    default:
      return spelled(
          random, {randomString(random, count, decimalDigits), random.between(-350, 350) - length});
  }
}

}  // namespace vtlcmd::oracle

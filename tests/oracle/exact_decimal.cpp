#include "exact_decimal.h"

#include "big_integer.h"

namespace vtlcmd::oracle {

ExactDecimal exactDecimal(std::uint64_t significand, std::int64_t exponent) {
  BigInteger number(significand);
  if (exponent >= 0) {
    number.shiftLeft(static_cast<std::size_t>(exponent));
    return {number.toDecimal(), 0};
  }
  // 2^-e is 5^e * 10^-e.
  number.multiplyByPowerOfFive(static_cast<std::uint64_t>(-exponent));
  return {number.toDecimal(), exponent};
}

ExactDecimal truncated(ExactDecimal number, std::size_t count) {
  if (count >= number.digits.size()) return number;
  number.exponent += static_cast<std::int64_t>(number.digits.size() - count);
  number.digits.resize(count);
  return number;
}

void increment(std::string& digits) {
  std::size_t last = digits.size();
  while (last > 0 && digits[last - 1] == '9') digits[--last] = '0';
  if (last == 0) {
    digits.insert(digits.begin(), '1');
  } else {
    ++digits[last - 1];
  }
}

void decrement(std::string& digits) {
  std::size_t last = digits.size();
  while (digits[last - 1] == '0') digits[--last] = '9';
  --digits[last - 1];
  if (digits.size() > 1 && digits.front() == '0') digits.erase(digits.begin());
}

}  // namespace vtlcmd::oracle

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vtlcmd::oracle {

/// digits * 10^exponent; the digits don't begin with a zero unless they are "0".
struct ExactDecimal {
  std::string digits;
  std::int64_t exponent;
};

/// significand * 2^exponent, with all its digits.
ExactDecimal exactDecimal(std::uint64_t significand, std::int64_t exponent);

/// Cuts off what stands behind the first `count` digits.
ExactDecimal truncated(ExactDecimal number, std::size_t count);

/// One unit in the last digit more; one less, for digits other than "0".
void increment(std::string& digits);
void decrement(std::string& digits);

}  // namespace vtlcmd::oracle

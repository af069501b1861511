#include "nodes/number_conversion.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

template <typename To, typename From>
void expectConverted(From number, To expected, bool clamped) {
  const Converted<To> converted = convertNumber<To>(number);
  EXPECT_EQ(converted.number, expected) << +number;
  EXPECT_EQ(converted.clamped, clamped) << +number;
}

TEST(NumberConversion, FloatingToInteger) {
  expectConverted<std::int32_t>(2.9, 2, false);
  expectConverted<std::int32_t>(-2.9, -2, false);
  expectConverted<std::int32_t>(2147483647.9, 2147483647, false);
  expectConverted<std::int32_t>(2147483648.0, 2147483647, true);
  expectConverted<std::int32_t>(-2147483648.9, -2147483648, false);
  expectConverted<std::int32_t>(-2147483649.0, -2147483648, true);
  expectConverted<std::uint32_t>(-0.9, 0U, false);
  expectConverted<std::uint32_t>(-1.0, 0U, true);
  expectConverted<std::int64_t>(0x1p63, std::numeric_limits<std::int64_t>::max(), true);
  expectConverted<std::int64_t>(-0x1p63, std::numeric_limits<std::int64_t>::min(), false);
  expectConverted<std::uint64_t>(0x1p64, std::numeric_limits<std::uint64_t>::max(), true);
  expectConverted<std::uint64_t>(0x1.fffffffffffffp63, 18446744073709549568U, false);
  expectConverted<std::int32_t>(nan, 0, true);
  expectConverted<std::int32_t>(infinity, 2147483647, true);
  expectConverted<std::uint64_t>(-infinity, std::uint64_t{0}, true);
  expectConverted<std::int32_t>(16777216.0F, 16777216, false);
}

TEST(NumberConversion, IntegerToInteger) {
  expectConverted<std::int32_t>(std::int64_t{-5}, -5, false);
  expectConverted<std::int32_t>(std::uint32_t{4294967295}, 2147483647, true);
  expectConverted<std::uint32_t>(std::int64_t{-5}, 0U, true);
  expectConverted<std::int64_t>(std::numeric_limits<std::uint64_t>::max(),
                                std::numeric_limits<std::int64_t>::max(), true);
  expectConverted<std::int32_t>(std::numeric_limits<std::int64_t>::min(), -2147483648, true);
}

TEST(NumberConversion, DoubleToFloat) {
  constexpr float greatest = std::numeric_limits<float>::max();
  constexpr float floatInfinity = std::numeric_limits<float>::infinity();
  expectConverted<float>(0.1, 0.1F, false);
  expectConverted<float>(double{greatest}, greatest, false);
  expectConverted<float>(0x1.fffffefffffffp127, greatest, false);
  expectConverted<float>(0x1.ffffffp127, floatInfinity, true);
  expectConverted<float>(-1e300, -floatInfinity, true);
  expectConverted<float>(infinity, floatInfinity, false);
  EXPECT_TRUE(std::isnan(convertNumber<float>(nan).number));
}

TEST(NumberConversion, ToAndFromBool) {
  expectConverted<bool>(0.0, false, false);
  expectConverted<bool>(-0.0, false, false);
  expectConverted<bool>(0.5, true, false);
  expectConverted<bool>(nan, true, false);
  expectConverted<bool>(-3, true, false);
  expectConverted<std::int32_t>(true, 1, false);
  expectConverted<double>(true, 1.0, false);
  expectConverted<bool>(false, false, false);
}

TEST(NumberConversion, IntegerToFloating) {
  expectConverted<float>(std::int32_t{16777217}, 16777216.0F, false);
  expectConverted<double>(std::numeric_limits<std::uint64_t>::max(), 0x1p64, false);
}

}  // namespace
}  // namespace vtlcmd::runner

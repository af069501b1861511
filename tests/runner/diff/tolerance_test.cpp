#include "diff/tolerance.h"

#include <gtest/gtest.h>
#include <string>

namespace vtlcmd::runner {
namespace {

bool areEqualTexts(const std::string& a, const std::string& b, const Tolerance& tolerance = {}) {
  const bool result = areEqual(parseJson(a), parseJson(b), tolerance);
  EXPECT_EQ(areEqual(parseJson(b), parseJson(a), tolerance), result) << a << " and " << b;
  return result;
}

TEST(Tolerance, ExactComparesEveryBit) {
  EXPECT_TRUE(areEqualTexts("1", "1"));
  EXPECT_TRUE(areEqualTexts("1", "1.0"));
  EXPECT_FALSE(areEqualTexts("0.1", "0.10000000000000002"));
  EXPECT_FALSE(areEqualTexts("0.0", "-0.0"));
  EXPECT_FALSE(areEqualTexts("0", "-0.0"));
  EXPECT_TRUE(areEqualTexts("-0.0", "-0.0"));
  EXPECT_FALSE(areEqualTexts("18446744073709551615", "18446744073709551614"));
  EXPECT_FALSE(areEqualTexts("18446744073709551615", "-1"));
}

TEST(Tolerance, WhatIsNoNumberEqualsItself) {
  const Tolerance wide{1e300, 1};
  for (const char* value : {"\"nan\"", "\"inf\"", "true", "null", "\"\""}) {
    EXPECT_TRUE(areEqualTexts(value, value));
    EXPECT_TRUE(areEqualTexts(value, value, wide));
    EXPECT_FALSE(areEqualTexts(value, "1", wide));
    EXPECT_FALSE(areEqualTexts(value, "\"-inf\"", wide));
  }
}

TEST(Tolerance, TheAbsoluteOne) {
  EXPECT_TRUE(areEqualTexts("1", "1.5", {0.5, 0}));
  EXPECT_FALSE(areEqualTexts("1", "1.5000001", {0.5, 0}));
  EXPECT_TRUE(areEqualTexts("0.0", "-0.0", {0.5, 0}));
  EXPECT_TRUE(areEqualTexts("-1", "1", {2, 0}));
}

TEST(Tolerance, TheRelativeOneIsOfTheLargerNumber) {
  EXPECT_TRUE(areEqualTexts("90", "100", {0, 0.1}));
  EXPECT_FALSE(areEqualTexts("89", "100", {0, 0.1}));
  EXPECT_TRUE(areEqualTexts("-90", "-100", {0, 0.1}));
  EXPECT_FALSE(areEqualTexts("-90", "100", {0, 0.1}));
  EXPECT_TRUE(areEqualTexts("0", "0", {0, 0.1}));
}

TEST(Tolerance, IntegersKeepTheirLastBits) {
  EXPECT_FALSE(areEqualTexts("9007199254740993", "9007199254740992", {0.5, 0}));
  EXPECT_TRUE(areEqualTexts("9007199254740993", "9007199254740992", {1, 0}));
  EXPECT_FALSE(areEqualTexts("-9223372036854775808", "-9223372036854775807", {0.5, 0}));
  EXPECT_TRUE(areEqualTexts("-9223372036854775808", "18446744073709551615", {3e19, 0}));
  EXPECT_FALSE(areEqualTexts("-9223372036854775808", "18446744073709551615", {1e19, 0}));
}

TEST(Tolerance, NumbersFartherApartThanADoubleHoldsDiffer) {
  EXPECT_FALSE(areEqualTexts("1.7e308", "-1.7e308", {1e308, 0}));
}

}  // namespace
}  // namespace vtlcmd::runner

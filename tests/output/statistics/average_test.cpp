#include "vtlcmd/output/statistics/average.h"

#include <cmath>
#include <gtest/gtest.h>

namespace vtlcmd {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr std::int32_t lowest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t lowest64 = std::numeric_limits<std::int64_t>::min();

TEST(Truncate, GoesTowardZero) {
  EXPECT_EQ(truncate<std::int32_t>(1.75F), 1);
  EXPECT_EQ(truncate<std::int32_t>(-1.75F), -1);
  EXPECT_EQ(truncate<std::int32_t>(-0.5F), 0);
  EXPECT_EQ(truncate<std::int32_t>(2147483520.0F), 2147483520);
  EXPECT_EQ(truncate<std::int32_t>(-2147483648.0F), lowest32);
  EXPECT_EQ(truncate<std::int64_t>(-9223372036854775808.0F), lowest64);
}

TEST(Truncate, WhatDoesNotFitGivesTheMostNegativeNumber) {
  for (const float number :
       {2147483648.0F, -2147483904.0F, 1e30F, -1e30F, infinity, -infinity, std::nanf("")}) {
    EXPECT_EQ(truncate<std::int32_t>(number), lowest32) << number;
  }
  for (const float number : {twoTo63, 1e30F, -1e30F, infinity, -infinity, std::nanf("")}) {
    EXPECT_EQ(truncate<std::int64_t>(number), lowest64) << number;
  }
}

TEST(AverageOf, UnsignedLongTakesTheTopBitOffAndPutsItBack) {
  constexpr std::uint64_t top = std::uint64_t{1} << 63;
  EXPECT_EQ(averageOf<std::uint64_t>(top - 1, 1), top) << "rounds up to 2 to the 63rd";
  EXPECT_EQ(averageOf<std::uint64_t>(top + (top >> 1), 1), top + (top >> 1));
  EXPECT_EQ(averageOf<std::uint64_t>(~std::uint64_t{0}, 1), top) << "rounds up to 2 to the 64th";
  EXPECT_EQ(averageOf<std::uint64_t>(~std::uint64_t{0}, 2), top);
  EXPECT_EQ(averageOf<std::uint64_t>(7, 2), 3U);
}

TEST(MostAreTrue, TakesMoreThanHalfOfTheCount) {
  EXPECT_FALSE(mostAreTrue(0, 1));
  EXPECT_FALSE(mostAreTrue(1, 2));
  EXPECT_FALSE(mostAreTrue(1, 3));
  EXPECT_TRUE(mostAreTrue(2, 3));
}

TEST(MostAreTrue, CountsInSinglePrecision) {
  EXPECT_FALSE(mostAreTrue((1U << 24) + 1, 1U << 25)) << "both round to the same half";
  EXPECT_TRUE(mostAreTrue((1U << 24) + 2, 1U << 25));
}

}  // namespace
}  // namespace vtlcmd

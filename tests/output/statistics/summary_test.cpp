#include "vtlcmd/output/statistics/summary.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

#include "output/statistics/plain_totals.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

using testing::Number;
using testing::Parts;

template <typename T>
class SummaryOfNumbers : public ::testing::Test {};
using NumberTypes =
    ::testing::Types<float, double, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                     std::int64_t, std::uint64_t, Vantrel::Math::float2, Vantrel::Math::float3,
                     Vantrel::Math::float4>;
TYPE_TEST_SUITE(SummaryOfNumbers, NumberTypes);

TYPE_TEST(SummaryOfNumbers, SumIsDividedByTheVeryCount) {
  for (std::size_t count = 1; count <= 20; ++count) {
    const std::vector<Number<TypeParam>> fives(count * Parts<TypeParam>::count, 5);
    const auto summary = summarise(reinterpret_cast<const TypeParam*>(fives.data()), count);
    for (const TypeParam& each : {summary.minimum, summary.maximum, summary.average})
      EXPECT_EQ(std::memcmp(&each, fives.data(), sizeof each), 0) << count << " elements";
  }
}

TEST(SummaryOfBools, AverageIsWhetherMoreThanHalfAreTrue) {
  for (std::size_t count = 1; count <= 40; ++count) {
    std::array<bool, 40> elements{};
    for (std::size_t trueOnes = 0; trueOnes < count; ++trueOnes) {
      // The first one never counts as a true one.
      if (trueOnes != 0) elements[count - trueOnes] = true;
      const Summary<bool> summary = summarise(elements.data(), count);
      EXPECT_EQ(summary.average, 2 * trueOnes > count) << trueOnes << " of " << count;
      EXPECT_FALSE(summary.minimum);
      EXPECT_EQ(summary.maximum, trueOnes != 0);
    }
  }
}

}  // namespace
}  // namespace vtlcmd

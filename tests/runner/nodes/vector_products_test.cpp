#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

TEST(Magnitude, IsTheLength) {
  EXPECT_EQ(runOperation("magnitude", {{"vector", constant("Math::float2", "[3, 4]")}})
                .single<float>("result"),
            5);
  // The squares of these are beyond a double.
  const auto lengths =
      runOperation("magnitude",
                   {{"vector", constant("array<Math::double2>", "[[3e200, 4e200], [0, 0]]")}})
          .array<double>("result");
  ASSERT_EQ(lengths.size(), 2U);
  EXPECT_DOUBLE_EQ(lengths[0], 5e200);
  EXPECT_EQ(lengths[1], 0);
}

TEST(Dot, AddsTheProductsOfComponents) {
  EXPECT_EQ(
      runOperation("dot", {{"a", constant("Math::double4", "[1, 2, 3, 4]")},
                           {"b", constant("array<Math::double4>", "[[5, 6, 7, 8], [0, 0, 0, 1]]")}})
          .array<double>("result"),
      (std::vector<double>{70, 4}));
  // The sum of the squares, 2^24 + 2, needs more than the digits of a float on its way.
  EXPECT_EQ(runOperation("dot", {{"a", constant("Math::float3", "[4096, 1, 1]")},
                                 {"b", constant("Math::float3", "[4096, 1, 1]")}})
                .single<float>("result"),
            16777218.0F);
}

TEST(Cross, IsRightHanded) {
  EXPECT_EQ(runOperation("cross", {{"a", constant("Math::float3", "[1, 2, 3]")},
                                   {"b", constant("Math::float3", "[4, 6, 9]")}})
                .single<Math::float3>("result"),
            (Math::float3{{0, 3, -2}}));
}

}  // namespace
}  // namespace vtlcmd::runner

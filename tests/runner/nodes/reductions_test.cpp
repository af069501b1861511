#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

GraphResult reduce(const std::string& operation, const std::string& type,
                   const std::string& value) {
  return runOperation(operation,
                      {{"array", R"("type": "array<)" + type + R"(>", "value": )" + value}});
}

TEST(MinimumAndMaximum, TakeTheEndsOfTheOrder) {
  EXPECT_EQ(reduce("minimum", "int", "[3, -1, 2]").single<std::int32_t>("result"), -1);
  EXPECT_EQ(reduce("maximum", "ulong", "[3, 18446744073709551615]").single<std::uint64_t>("result"),
            18446744073709551615U);
  EXPECT_EQ(reduce("minimum", "Math::float2", "[[1, 5], [2, 4]]").single<Math::float2>("result"),
            (Math::float2{{1, 4}}));
}

TEST(MinimumAndMaximum, ANanIsTheGreatestWhereverItStands) {
  for (const char* numbers : {R"(["nan", 1, 2])", R"([1, "nan", 2])", R"([2, 1, "nan"])"}) {
    EXPECT_EQ(reduce("minimum", "double", numbers).single<double>("result"), 1) << numbers;
    EXPECT_TRUE(std::isnan(reduce("maximum", "double", numbers).single<double>("result")))
        << numbers;
  }
  for (const char* zeros : {"[0.0, -0.0]", "[-0.0, 0.0]"}) {
    EXPECT_TRUE(std::signbit(reduce("minimum", "float", zeros).single<float>("result"))) << zeros;
    EXPECT_FALSE(std::signbit(reduce("maximum", "float", zeros).single<float>("result"))) << zeros;
  }
}

TEST(Sum, WrapsIntegersAndAddsFloatsAsDoubles) {
  EXPECT_EQ(reduce("sum", "int", "[2147483647, 1]").single<std::int32_t>("result"),
            std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(reduce("sum", "float", "[16777216, 1, 1]").single<float>("result"), 16777218.0F);
  EXPECT_EQ(reduce("sum", "float", "[3e38, 3e38]").single<float>("result"),
            std::numeric_limits<float>::infinity());
  EXPECT_EQ(reduce("sum", "Math::double2", "[[1, 2], [3, 4]]").single<Math::double2>("result"),
            (Math::double2{{4, 6}}));
}

TEST(Reductions, NeedAnElement) {
  for (const std::string operation : {"minimum", "maximum", "sum"}) {
    EXPECT_EQ(reduce(operation, "float", "[]").messages,
              (Messages{"error: Node 'node' (" + operation + "): the array has no elements."}));
  }
}

}  // namespace
}  // namespace vtlcmd::runner

#include <cmath>
#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

GraphResult sort(const std::string& type, const std::string& value) {
  return runOperation("sort", {{"array", constant("array<" + type + ">", value)}});
}

TEST(Sort, PutsZerosInOrderAndNansLast) {
  const auto sorted =
      sort("double", R"(["nan", 0.0, "inf", -0.0, "nan", -1])").array<double>("result");
  ASSERT_EQ(sorted.size(), 6U);
  EXPECT_EQ(sorted[0], -1);
  EXPECT_TRUE(sorted[1] == 0 && std::signbit(sorted[1]));
  EXPECT_TRUE(sorted[2] == 0 && !std::signbit(sorted[2]));
  EXPECT_TRUE(std::isinf(sorted[3]));
  EXPECT_TRUE(std::isnan(sorted[4]) && std::isnan(sorted[5]));
}

TEST(Sort, TakesIntegersBoolsTextsAndNothing) {
  EXPECT_EQ(sort("int", "[3, -1, 2]").array<std::int32_t>("result"),
            (std::vector<std::int32_t>{-1, 2, 3}));
  EXPECT_EQ(sort("bool", "[true, false]").array<bool>("result"), (std::vector<bool>{false, true}));
  const auto texts = sort("string", R"(["é", "a", "", "B"])").array<Orvel::String>("result");
  EXPECT_EQ(texts, (std::vector<Orvel::String>{"", "B", "a", "é"}));
  EXPECT_TRUE(sort("float", "[]").array<float>("result").empty());
}

GraphResult clamp(const std::string& value, const std::string& low, const std::string& high) {
  return runOperation("clamp", {{"value", value}, {"low", low}, {"high", high}});
}

TEST(Clamp, KeepsWithinTheBounds) {
  EXPECT_EQ(
      clamp(constant("array<int>", "[-5, 5, 50]"), constant("int", "0"), constant("int", "10"))
          .array<std::int32_t>("result"),
      (std::vector<std::int32_t>{0, 5, 10}));
  EXPECT_EQ(clamp(constant("Math::float2", "[-1, 9]"), constant("float", "0"),
                  constant("Math::float2", "[5, 6]"))
                .single<Math::float2>("result"),
            (Math::float2{{0, 6}}));
  EXPECT_TRUE(std::isnan(
      clamp(constant("float", R"("nan")"), constant("float", "0"), constant("float", "1"))
          .single<float>("result")));
}

TEST(Clamp, RefusesBoundsOutOfOrder) {
  EXPECT_EQ(
      clamp(constant("float", "1"), constant("float", "0.1"), constant("float", "-2")).messages,
      (Messages{"error: Node 'node' (clamp): the bounds 0.1 and -2 aren't in order."}));
  EXPECT_EQ(
      clamp(constant("float", "1"), constant("float", "0"), constant("float", R"("nan")")).messages,
      (Messages{"error: Node 'node' (clamp): the bounds 0 and nan aren't in order."}));
}

}  // namespace
}  // namespace vtlcmd::runner

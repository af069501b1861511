#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

GraphResult runTwo(const std::string& operation, const std::string& type, const std::string& a,
                   const std::string& b) {
  const std::string head = R"("type": ")" + type + R"(", "value": )";
  return runOperation(operation, {{"a", head + a}, {"b", head + b}});
}

TEST(Arithmetic, IntegersWrap) {
  EXPECT_EQ(runTwo("add", "int", "2147483647", "1").single<std::int32_t>("result"), -2147483648);
  EXPECT_EQ(runTwo("subtract", "uint", "0", "1").single<std::uint32_t>("result"), 4294967295U);
  EXPECT_EQ(runTwo("multiply", "long", "9223372036854775807", "2").single<std::int64_t>("result"),
            -2);
  EXPECT_EQ(runTwo("add", "ulong", "18446744073709551615", "2").single<std::uint64_t>("result"),
            1U);
}

TEST(Arithmetic, IntegersAreDividedTowardsZero) {
  EXPECT_EQ(runTwo("divide", "int", "-7", "2").single<std::int32_t>("result"), -3);
  EXPECT_EQ(runTwo("divide", "ulong", "18446744073709551615", "2").single<std::uint64_t>("result"),
            9223372036854775807U);
  EXPECT_EQ(runTwo("divide", "int", "-2147483648", "-1").single<std::int32_t>("result"),
            -2147483648);
  EXPECT_EQ(runTwo("divide", "int", "5", "-1").single<std::int32_t>("result"), -5);
}

TEST(Arithmetic, DivisionByZero) {
  for (const char* type : {"int", "uint", "long", "ulong"}) {
    const GraphResult result = runTwo("divide", type, "1", "0");
    EXPECT_TRUE(result.outputs.empty()) << type;
    EXPECT_EQ(result.messages,
              (std::vector<std::string>{
                  "error: Node 'node' (divide): an integer can't be divided by zero."}))
        << type;
  }
  EXPECT_EQ(runTwo("divide", "double", "-1", "0").single<double>("result"),
            -std::numeric_limits<double>::infinity());
}

TEST(Arithmetic, VectorsGoByComponent) {
  EXPECT_EQ(runTwo("multiply", "Math::double2", "[2, 3]", "[4, 5]").single<Math::double2>("result"),
            (Math::double2{{8, 15}}));
  EXPECT_EQ(runTwo("subtract", "Math::float4", "[1, 2, 3, 4]", "[4, 3, 2, 1]")
                .single<Math::float4>("result"),
            (Math::float4{{-3, -1, 1, 3}}));
}

TEST(Arithmetic, ArraysGoByElement) {
  EXPECT_EQ(runTwo("add", "array<int>", "[1, 2, 3]", "[10, 20, 30]").array<std::int32_t>("result"),
            (std::vector<std::int32_t>{11, 22, 33}));
  EXPECT_EQ(runTwo("add", "array<float>", "[]", "[]").array<float>("result"), std::vector<float>{});
}

TEST(Arithmetic, SinglesJoinArraysAndNumbersJoinVectors) {
  const std::string array = R"("type": "array<Math::float2>", "value": [[1, 2], [3, 4]])";
  const std::string number = R"("type": "float", "value": 2)";
  EXPECT_EQ(runOperation("divide", {{"a", array}, {"b", number}}).array<Math::float2>("result"),
            (std::vector<Math::float2>{{{0.5F, 1}}, {{1.5F, 2}}}));
  EXPECT_EQ(runOperation("divide", {{"a", number}, {"b", array}}).array<Math::float2>("result"),
            (std::vector<Math::float2>{{{2, 1}}, {{2.0F / 3, 0.5F}}}));
  const std::string numbers = R"("type": "array<float>", "value": [10, 100])";
  const std::string vector = R"("type": "Math::float2", "value": [1, 2])";
  EXPECT_EQ(runOperation("multiply", {{"a", numbers}, {"b", vector}}).array<Math::float2>("result"),
            (std::vector<Math::float2>{{{10, 20}}, {{100, 200}}}));
}

TEST(Arithmetic, LengthsMustAgree) {
  EXPECT_EQ(runTwo("add", "array<int>", "[1]", "[]").messages,
            (std::vector<std::string>{
                "error: Node 'node' (add): the arrays differ in length: 1 and 0 elements."}));
}

TEST(Arithmetic, SineAndCosine) {
  EXPECT_EQ(
      runOperation("sine", {{"x", R"("type": "double", "value": 0)"}}).single<double>("result"),
      0.0);
  EXPECT_EQ(runOperation("cosine", {{"x", R"("type": "array<float>", "value": [0, 0])"}})
                .array<float>("result"),
            (std::vector<float>{1, 1}));
  EXPECT_TRUE(std::isnan(
      runOperation("sine", {{"x", R"("type": "float", "value": "inf")"}}).single<float>("result")));
}

}  // namespace
}  // namespace vtlcmd::runner

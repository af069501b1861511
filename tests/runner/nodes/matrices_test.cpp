#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

GraphResult matrix(const std::string& rest) {
  return runGraph(R"({"nodes": [
      {"name": "one", "op": "constant", "type": "double", "value": 1},
      {"name": "rest", "op": "constant", "type": "array<double>", "value": )" +
                  rest + R"(},
      {"name": "node", "op": "matrix", "type": "Math::double2x2", "in": {"components": ["one", "rest"]}},
      {"name": "point", "op": "constant", "type": "Math::double2", "value": [10, 100]},
      {"name": "moved", "op": "transform", "in": {"matrix": "node", "point": "point"}}],
    "outputs": [{"name": "matrix", "from": "node"}, {"name": "moved", "from": "moved"}]})");
}

TEST(Matrix, TakesItsComponentsRowByRow) {
  const GraphResult result = matrix("[2, 3, 4]");
  ASSERT_EQ(result.messages, Messages{});
  EXPECT_EQ(result.single<Math::double2x2>("matrix"), (Math::double2x2{{1, 2, 3, 4}}));
  EXPECT_EQ(result.single<Math::double2>("moved"), (Math::double2{{210, 430}}));
  EXPECT_EQ(matrix("[2]").messages,
            (Messages{"error: Node 'node' (matrix): Math::double2x2 has 4 components, not 2."}));
}

template <typename T>
T transform(const std::string& matrixType, const std::string& numbers, const std::string& pointType,
            const std::string& point) {
  return runOperation("transform", {{"matrix", constant(matrixType, numbers)},
                                    {"point", constant(pointType, point)}})
      .single<T>("result");
}

TEST(Transform, AColumnMoreMoves) {
  EXPECT_EQ(
      transform<Math::float2>("Math::float2x3", "[1, 0, 5, 0, 1, 6]", "Math::float2", "[1, 2]"),
      (Math::float2{{6, 8}}));
  EXPECT_EQ(
      transform<Math::float3>("Math::float4x4", "[1, 0, 0, 5, 0, 1, 0, 6, 0, 0, 1, 7, 0, 0, 0, 1]",
                              "Math::float3", "[1, 2, 3]"),
      (Math::float3{{6, 8, 10}}));
}

TEST(Transform, ASquareOneDividesByItsLastComponent) {
  EXPECT_EQ(transform<Math::float2>("Math::float3x3", "[1, 0, 0, 0, 1, 0, 0, 0, 2]", "Math::float2",
                                    "[4, 6]"),
            (Math::float2{{2, 3}}));
  EXPECT_EQ(transform<Math::float3>("Math::float3x3", "[1, 0, 0, 0, 1, 0, 0, 0, 2]", "Math::float3",
                                    "[4, 6, 1]"),
            (Math::float3{{4, 6, 2}}));
}

TEST(Transform, TakesArraysOfPoints) {
  EXPECT_EQ(
      runOperation("transform", {{"matrix", constant("Math::float2x2", "[0, -1, 1, 0]")},
                                 {"point", constant("array<Math::float2>", "[[1, 0], [0, 1]]")}})
          .array<Math::float2>("result"),
      (std::vector<Math::float2>{{{0, 1}}, {{-1, 0}}}));
}

}  // namespace
}  // namespace vtlcmd::runner

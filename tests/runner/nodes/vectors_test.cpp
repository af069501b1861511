#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

TEST(Vector, OfNumbersAndOfArrays) {
  const GraphResult result = runGraph(R"({
    "nodes": [
      {"name": "x", "op": "constant", "type": "double", "value": 1},
      {"name": "ys", "op": "constant", "type": "array<double>", "value": [2, 3]},
      {"name": "single", "op": "vector", "type": "Math::double2", "in": {"components": ["x", "x"]}},
      {"name": "array", "op": "vector", "type": "array<Math::double2>",
       "in": {"components": ["x", "ys"]}}],
    "outputs": [{"name": "single", "from": "single"}, {"name": "array", "from": "array"}]})");
  EXPECT_EQ(result.single<Math::double2>("single"), (Math::double2{{1, 1}}));
  EXPECT_EQ(result.array<Math::double2>("array"), (std::vector<Math::double2>{{{1, 2}}, {{1, 3}}}));
}

TEST(Component, OfVectorsAndOfArrays) {
  const std::string index = R"("type": "int", "value": 2)";
  EXPECT_EQ(runOperation("component", {{"vector", R"("type": "Math::float3", "value": [1, 2, 3])"},
                                       {"index", index}})
                .single<float>("result"),
            3.0F);
  EXPECT_EQ(runOperation("component",
                         {{"vector", R"("type": "array<Math::double3>", "value": [[1, 2, 3]])"},
                          {"index", index}})
                .array<double>("result"),
            (std::vector<double>{3}));
}

}  // namespace
}  // namespace vtlcmd::runner

#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

GraphResult convert(const std::string& constant, const std::string& to) {
  return runOperation("convert", {{"value", constant}}, R"(, "type": ")" + to + "\"");
}

TEST(Convert, Singles) {
  EXPECT_EQ(convert(R"("type": "double", "value": 2.5)", "int").single<std::int32_t>("result"), 2);
  EXPECT_TRUE(convert(R"("type": "int", "value": -1)", "bool").single<bool>("result"));
  EXPECT_EQ(convert(R"("type": "bool", "value": true)", "float").single<float>("result"), 1.0F);
}

TEST(Convert, ArraysAndVectors) {
  EXPECT_EQ(convert(R"("type": "array<double>", "value": [1.5, -2.5])", "array<long>")
                .array<std::int64_t>("result"),
            (std::vector<std::int64_t>{1, -2}));
  EXPECT_EQ(convert(R"("type": "Math::double3", "value": [1, 2, 3])", "Math::float3")
                .single<Math::float3>("result"),
            (Math::float3{{1, 2, 3}}));
}

TEST(Convert, WarnsOfValuesThatDoNotFit) {
  EXPECT_EQ(convert(R"("type": "double", "value": 3e9)", "int").messages,
            (std::vector<std::string>{"warning: Node 'node' (convert): the value didn't fit into "
                                      "int and became the nearest that does."}));
  const GraphResult result =
      convert(R"("type": "array<double>", "value": [1, "nan", -1e10])", "array<int>");
  EXPECT_EQ(result.array<std::int32_t>("result"), (std::vector<std::int32_t>{1, 0, -2147483648}));
  EXPECT_EQ(result.messages,
            (std::vector<std::string>{"warning: Node 'node' (convert): 2 of 3 values didn't fit "
                                      "into int and became the nearest that does."}));
}

}  // namespace
}  // namespace vtlcmd::runner

#include <gtest/gtest.h>

#include "graph/graph_error.h"
#include "runner/support/run_graph.h"

namespace vtlcmd::runner {
namespace {

using Inputs = std::vector<std::pair<std::string, std::string>>;

/// Why the graph with such a node isn't loaded. An input is its name and its type.
std::string refusalOf(const std::string& operation, const Inputs& inputs,
                      const std::string& rest = "") {
  std::string ports;
  std::string in;
  for (const auto& [name, type] : inputs) {
    ports +=
        (ports.empty() ? "" : ", ") + (R"({"name": ")" + name) + R"(", "type": ")" + type + R"("})";
    in += (in.empty() ? "" : ", ") + ("\"" + name) + R"(": )" +
          (name == "components" ? R"(["components"])" : '"' + name + '"');
  }
  try {
    parseGraph(R"({"inputs": [)" + ports + R"(], "nodes": [{"name": "node", "op": ")" + operation +
               R"(", "in": {)" + in + "}" + rest + "}]}");
  } catch (const GraphError& error) {
    return error.what();
  }
  return "loaded";
}

TEST(TypeRules, TellWhatDoesntFitTogether) {
  EXPECT_EQ(refusalOf("less", {{"a", "int"}, {"b", "long"}}),
            "$.nodes[0]: int and long don't compare; convert one");
  EXPECT_EQ(refusalOf("select", {{"condition", "bool"}, {"a", "int"}, {"b", "float"}}),
            "$.nodes[0]: bool can't select from int and float");
  EXPECT_EQ(refusalOf("select", {{"condition", "array<bool>"},
                                 {"a", "array<array<int>>"},
                                 {"b", "array<array<int>>"}}),
            "$.nodes[0]: array<bool> can't select from array<array<int>> and array<array<int>>");
  EXPECT_EQ(refusalOf("select", {{"condition", "array<bool>"}, {"a", "short"}, {"b", "short"}}),
            "$.nodes[0]: array<bool> can't select from short and short");
  EXPECT_EQ(refusalOf("clamp", {{"value", "Math::float2"}, {"low", "float"}, {"high", "double"}}),
            "$.nodes[0]: double is no bound for Math::float2; convert one");
  EXPECT_EQ(refusalOf("dot", {{"a", "Math::float2"}, {"b", "Math::double2"}}),
            "$.nodes[0]: Math::float2 and Math::double2 don't go together; convert one");
  EXPECT_EQ(refusalOf("cross", {{"a", "Math::float2"}, {"b", "Math::float2"}}),
            "$.nodes[0]: Math::float2 has no cross product; vectors of three components have");
  EXPECT_EQ(refusalOf("transform", {{"matrix", "Math::float2x3"}, {"point", "Math::float3"}}),
            "$.nodes[0]: Math::float2x3 doesn't transform Math::float3");
  EXPECT_EQ(refusalOf("transform", {{"matrix", "Math::double4x4"}, {"point", "Math::float4"}}),
            "$.nodes[0]: Math::double4x4 doesn't transform Math::float4");
}

TEST(TypeRules, HoldForDeclaredTypes) {
  EXPECT_EQ(refusalOf("number", {{"text", "string"}}, R"(, "type": "Math::float2")"),
            "$.nodes[0]: string doesn't read as Math::float2");
  EXPECT_EQ(refusalOf("number", {{"text", "array<string>"}}, R"(, "type": "int")"),
            "$.nodes[0]: array<string> doesn't read as int");
  EXPECT_EQ(refusalOf("matrix", {{"components", "float"}}, R"(, "type": "Math::int2x2")"),
            "$.nodes[0]: Math::int2x2 is no matrix of floats or doubles");
  EXPECT_EQ(refusalOf("matrix", {{"components", "float"}}, R"(, "type": "Math::double2x2")"),
            "$.nodes[0]: a component of Math::double2x2 is of type double, not float");
}

TEST(TypeRules, ArraysAndConditionsAreAskedFor) {
  EXPECT_EQ(refusalOf("filter", {{"array", "array<int>"}, {"condition", "bool"}}),
            "$.nodes[0].in.condition: the input takes an array of bools, 'condition' gives bool");
  EXPECT_EQ(refusalOf("sum", {{"array", "array<bool>"}}),
            "$.nodes[0].in.array: the input takes an array of numbers or vectors, 'array' gives "
            "array<bool>");
  EXPECT_EQ(refusalOf("sort", {{"array", "array<Math::float2>"}}),
            "$.nodes[0].in.array: the input takes an array of numbers, bools or strings, 'array' "
            "gives array<Math::float2>");
}

}  // namespace
}  // namespace vtlcmd::runner

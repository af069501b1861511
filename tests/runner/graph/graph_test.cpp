#include "graph/graph.h"

#include <gtest/gtest.h>

#include "graph/graph_error.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

std::string graphRefusal(std::string_view text) {
  try {
    parseGraph(text);
  } catch (const GraphError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Graph, ReadsAllParts) {
  const Graph graph = parseGraph(R"({
    "name": "scatter",
    "description": "not read",
    "inputs": [
      {"name": "count", "type": "int", "default": 100},
      {"name": "offset", "type": "Math::float3", "description": "moves it"}],
    "jobs": [{"name": "seed", "type": "uint"}],
    "nodes": [
      {"name": "sum", "op": "add", "in": {"a": "ramp", "b": "count"}},
      {"name": "ramp", "op": "range", "in": {"count": "count"}}],
    "outputs": [{"name": "values", "from": "sum", "description": "the sums"},
                {"name": "echo", "from": "offset"}]})");
  EXPECT_EQ(graph.name, "scatter");
  ASSERT_EQ(graph.ports.size(), 3U);
  EXPECT_EQ(graph.ports[0].name, "count");
  EXPECT_EQ(graph.ports[0].type, (ValueType{"int", 0}));
  EXPECT_EQ(Orvel::valueAs<std::int32_t>(*graph.ports[0].defaultValue), 100);
  EXPECT_EQ(graph.ports[0].defaultText, "100");
  EXPECT_FALSE(graph.ports[1].defaultValue.has_value());
  EXPECT_EQ(graph.ports[1].description, "moves it");
  EXPECT_FALSE(graph.ports[1].isJob);
  EXPECT_TRUE(graph.ports[2].isJob);
  ASSERT_EQ(graph.nodes.size(), 2U);
  EXPECT_EQ(graph.nodes[0].sources, (std::vector<std::vector<std::size_t>>{{4}, {0}}));
  EXPECT_EQ(graph.nodes[0].type, (ValueType{"int", 1}));
  EXPECT_EQ(graph.order, (std::vector<std::size_t>{1, 0}));
  ASSERT_EQ(graph.outputs.size(), 2U);
  EXPECT_EQ(graph.outputs[0].source, 3U);
  EXPECT_EQ(graph.outputs[0].description, "the sums");
  EXPECT_EQ(graph.outputs[1].source, 1U);
}

TEST(Graph, MayBeEmpty) {
  const Graph graph = parseGraph("{}");
  EXPECT_TRUE(graph.ports.empty() && graph.nodes.empty() && graph.outputs.empty());
}

TEST(Graph, ListParametersTakeAnyNumberOfSources) {
  const Graph graph = parseGraph(R"({"inputs": [{"name": "x", "type": "int"}],
    "nodes": [{"name": "n", "op": "array", "in": {"elements": ["x", "x", "x"]}}]})");
  EXPECT_EQ(graph.nodes[0].sources, (std::vector<std::vector<std::size_t>>{{0, 0, 0}}));
  EXPECT_EQ(graph.nodes[0].type, (ValueType{"int", 1}));
}

TEST(Graph, AListIsNoSingleSource) {
  EXPECT_EQ(graphRefusal(R"({"inputs": [{"name": "x", "type": "int"}],
    "nodes": [{"name": "n", "op": "range", "in": {"count": ["x"]}}]})"),
            "$.nodes[0].in.count: expected a text, found an array");
}

TEST(Graph, BrokenDocumentsNameLineAndColumn) {
  EXPECT_EQ(graphRefusal("{\n \"name\" 3}"),
            "line 2, column 9: syntax error while parsing object separator - unexpected number "
            "literal; expected ':'");
  EXPECT_EQ(graphRefusal(""),
            "line 1, column 1: syntax error while parsing value - unexpected end of input; "
            "expected '[', '{', or a literal");
}

TEST(Graph, BytesThatAreNoTextAreRefused) {
  EXPECT_EQ(graphRefusal("{\"name\": \"\xFF\"}").substr(0, 17), "line 1, column 11");
}

TEST(Graph, NamesHoldNoControlCharacters) {
  EXPECT_EQ(graphRefusal(R"({"inputs": [{"name": "a\u001fb", "type": "int"}]})"),
            "$.inputs[0].name: a name can't hold control characters");
}

TEST(Graph, DeepNestingIsNoProblem) {
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  EXPECT_EQ(graphRefusal(deep), "$: expected an object, found an array");
}

TEST(Graph, ALongCycleIsFound) {
  std::string nodes;
  for (int i = 0; i < 1000; ++i) {
    nodes += std::string(i > 0 ? "," : "") + R"({"name": "n)" + std::to_string(i) +
             R"(", "op": "length", "in": {"array": "n)" + std::to_string((i + 1) % 1000) + R"("}})";
  }
  EXPECT_EQ(graphRefusal(R"({"nodes": [)" + nodes + "]}").substr(0, 63),
            "$.nodes[999]: the nodes form a cycle: 'n999' -> 'n998' -> 'n997");
}

}  // namespace
}  // namespace vtlcmd::runner

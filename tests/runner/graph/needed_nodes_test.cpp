#include "graph/needed_nodes.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using Nodes = std::vector<std::size_t>;

/// a and b make c, c makes d; nobody reads e. Outputs of c, d and of the port.
Graph someGraph() {
  return parseGraph(R"({
    "inputs": [{"name": "port", "type": "int"}],
    "nodes": [
      {"name": "d", "op": "add", "in": {"a": "c", "b": "c"}},
      {"name": "c", "op": "add", "in": {"a": "a", "b": "b"}},
      {"name": "a", "op": "constant", "type": "int", "value": 1},
      {"name": "b", "op": "add", "in": {"a": "port", "b": "port"}},
      {"name": "e", "op": "add", "in": {"a": "a", "b": "a"}}],
    "outputs": [{"name": "C", "from": "c"}, {"name": "D", "from": "d"},
                {"name": "P", "from": "port"}]})");
}

std::vector<std::string> outputNames(const Graph& graph) {
  std::vector<std::string> names;
  for (const GraphOutput& output : graph.outputs) names.push_back(output.name);
  return names;
}

TEST(NeededNodes, AreThoseBehindTheOutputs) {
  Graph graph = someGraph();
  ASSERT_EQ(graph.order, (Nodes{2, 3, 1, 0, 4}));
  keepOutputs(graph, {"C"});
  EXPECT_EQ(outputNames(graph), std::vector<std::string>{"C"});
  EXPECT_EQ(graph.order, (Nodes{2, 3, 1}));
  EXPECT_EQ(graph.ports.size(), 1U);
}

TEST(NeededNodes, OfSeveralOutputsAreTogether) {
  Graph graph = someGraph();
  keepOutputs(graph, {"P", "D"});
  EXPECT_EQ(outputNames(graph), (std::vector<std::string>{"D", "P"}));
  EXPECT_EQ(graph.order, (Nodes{2, 3, 1, 0}));
}

TEST(NeededNodes, OfAPortAreNone) {
  Graph graph = someGraph();
  keepOutputs(graph, {"P"});
  EXPECT_EQ(graph.order, Nodes{});
}

}  // namespace
}  // namespace vtlcmd::runner

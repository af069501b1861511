#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "graph/graph.h"
#include "graph/graph_error.h"
#include "requirement.h"
#include "target.h"

namespace {

using vtlcmd::fuzz::require;
using vtlcmd::runner::Graph;

/// Everything that a run takes for granted of a graph.
void requireSound(const Graph& graph) {
  const std::size_t slots = graph.ports.size() + graph.nodes.size();
  require(graph.order.size() == graph.nodes.size(), "each node has its turn");
  std::vector<bool> isThere(slots, false);
  for (std::size_t port = 0; port < graph.ports.size(); ++port) isThere[port] = true;
  for (const std::size_t node : graph.order) {
    require(node < graph.nodes.size() && !isThere[graph.slotOfNode(node)], "a node has one turn");
    require(graph.nodes[node].operation != nullptr, "a node has an operation");
    for (const auto& sources : graph.nodes[node].sources) {
      require(!sources.empty(), "each parameter has a source");
      for (const std::size_t slot : sources)
        require(slot < slots && isThere[slot], "sources come before what reads them");
    }
    isThere[graph.slotOfNode(node)] = true;
  }
  for (const auto& output : graph.outputs) require(output.source < slots, "an output has a source");
}

}  // namespace

/// Each text is a sound graph or refused with the place in it; what is no JSON is never a graph.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = vtlcmd::fuzz::textOf(data, size);
  try {
    const Graph graph = vtlcmd::runner::parseGraph(text);
    require(nlohmann::json::accept(text), "a graph is JSON");
    require(graph.text == text, "a graph keeps its text");
    requireSound(graph);
  } catch (const vtlcmd::runner::GraphError& error) {
    const std::string said = error.what();
    require(said.find(": ") != std::string::npos, "a refusal names the place");
  }
  return 0;
}

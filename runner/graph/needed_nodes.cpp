#include "graph/needed_nodes.h"

#include <algorithm>

namespace vtlcmd::runner {

void keepOutputs(Graph& graph, const std::set<std::string>& names) {
  std::erase_if(graph.outputs,
                [&](const GraphOutput& output) { return !names.contains(output.name); });
  std::vector<bool> needed(graph.ports.size() + graph.nodes.size());
  for (const GraphOutput& output : graph.outputs) needed[output.source] = true;
  for (auto node = graph.order.rbegin(); node != graph.order.rend(); ++node) {
    if (!needed[graph.slotOfNode(*node)]) continue;
    for (const std::vector<std::size_t>& sources : graph.nodes[*node].sources) {
      for (const std::size_t slot : sources) needed[slot] = true;
    }
  }
  std::erase_if(graph.order, [&](std::size_t node) { return !needed[graph.slotOfNode(node)]; });
}

}  // namespace vtlcmd::runner

#include "graph/frame_dependence.h"

#include <algorithm>

#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {

std::vector<bool> frameDependence(const Graph& graph) {
  std::vector<bool> nodes(graph.nodes.size());
  const auto differs = [&](std::size_t slot) {
    if (slot >= graph.ports.size()) return bool{nodes[slot - graph.ports.size()]};
    return graph.ports[slot].type.element == valueType<Vantrel::Simulation::Time>().name;
  };
  for (const std::size_t node : graph.order) {
    const auto& parameters = graph.nodes[node].sources;
    nodes[node] = std::any_of(parameters.begin(), parameters.end(), [&](const auto& sources) {
      return std::any_of(sources.begin(), sources.end(), differs);
    });
  }
  return nodes;
}

}  // namespace vtlcmd::runner

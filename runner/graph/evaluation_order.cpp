#include "graph/evaluation_order.h"

#include <algorithm>
#include <functional>
#include <queue>

namespace vtlcmd::runner {

std::vector<std::size_t> evaluationOrder(const Dependencies& dependencies) {
  Dependencies readers(dependencies.size());
  std::vector<std::size_t> missing(dependencies.size());
  std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> ready;
  for (std::size_t node = 0; node < dependencies.size(); ++node) {
    for (const std::size_t source : dependencies[node]) readers[source].push_back(node);
    missing[node] = dependencies[node].size();
    if (missing[node] == 0) ready.push(node);
  }
  std::vector<std::size_t> order;
  while (!ready.empty()) {
    const std::size_t node = ready.top();
    ready.pop();
    order.push_back(node);
    for (const std::size_t reader : readers[node]) {
      if (--missing[reader] == 0) ready.push(reader);
    }
  }
  return order;
}

std::vector<std::size_t> findCycle(const Dependencies& dependencies) {
  std::vector<bool> unordered(dependencies.size(), true);
  for (const std::size_t node : evaluationOrder(dependencies)) unordered[node] = false;
  const auto first = std::find(unordered.begin(), unordered.end(), true);
  if (first == unordered.end()) return {};
  // Each unordered node reads from another one, so that the way back must meet itself.
  std::vector<std::size_t> way{static_cast<std::size_t>(first - unordered.begin())};
  std::vector<bool> seen(dependencies.size());
  seen[way.front()] = true;
  for (;;) {
    const std::vector<std::size_t>& sources = dependencies[way.back()];
    const std::size_t source = *std::find_if(sources.begin(), sources.end(),
                                             [&](std::size_t node) { return unordered[node]; });
    if (seen[source]) {
      way.erase(way.begin(), std::find(way.begin(), way.end(), source));
      std::reverse(way.begin(), way.end());
      return way;
    }
    seen[source] = true;
    way.push_back(source);
  }
}

}  // namespace vtlcmd::runner

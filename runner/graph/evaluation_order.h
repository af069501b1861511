#pragma once

#include <cstddef>
#include <vector>

namespace vtlcmd::runner {

/// By node, the nodes that it reads from.
using Dependencies = std::vector<std::vector<std::size_t>>;

/// Every node behind those that it reads from, otherwise in given order. Nodes of a cycle, and
/// those behind one, are left out.
std::vector<std::size_t> evaluationOrder(const Dependencies& dependencies);

/// One cycle, each node followed by one that reads from it. Empty when there is none.
std::vector<std::size_t> findCycle(const Dependencies& dependencies);

}  // namespace vtlcmd::runner

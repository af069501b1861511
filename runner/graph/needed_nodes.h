#pragma once

#include <set>
#include <string>

#include "graph/graph.h"

namespace vtlcmd::runner {

/// Leaves only the outputs of these names in a graph, and only the nodes that they need in its
/// order of evaluation. Its ports stay.
void keepOutputs(Graph& graph, const std::set<std::string>& names);

}  // namespace vtlcmd::runner

#pragma once

#include <vector>

#include "graph/graph.h"

namespace vtlcmd::runner {

/// By node, whether its value may differ from frame to frame: whether it reads, through whatever
/// nodes, a port that takes the time. All other ports are set to the same value in every frame.
std::vector<bool> frameDependence(const Graph& graph);

}  // namespace vtlcmd::runner

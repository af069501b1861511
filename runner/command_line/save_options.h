#pragma once

#include <string>
#include <vector>

#include "execution/frame_list.h"
#include "graph/graph.h"
#include "saving/output_saver.h"

namespace vtlcmd::runner {

/// What is to be saved, from OUTPUT=FILE. Throws UsageError for an unknown output, for a file whose
/// format is unknown or has no place for the output's type, and for a name that isn't one a frame.
std::vector<SavedOutput> savedOutputsFrom(const std::vector<std::string>& assignments,
                                          const Graph& graph, const FrameList& frames);

/// Throws UsageError, with near misses, when the graph has no such output.
const GraphOutput& requireOutput(const Graph& graph, const std::string& name);

}  // namespace vtlcmd::runner

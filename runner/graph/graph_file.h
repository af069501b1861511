#pragma once

#include <string>
#include <string_view>

#include "graph/graph.h"

namespace vtlcmd::runner {

/// What stands for the standard input where a command wants a file.
inline constexpr const char* standardInput = "-";

/// Reads and checks the graph that a command line names: a file, or `-` for the standard input. A
/// graph without a name takes the file's. Relative paths in it mean its folder: the one of the file
/// that a link leads to, the working directory for the standard input. Throws GraphError, whose
/// text begins with the file.
Graph loadGraph(const std::string& name);

/// The same of a text that was read before.
Graph graphFrom(const std::string& name, std::string_view text);

}  // namespace vtlcmd::runner

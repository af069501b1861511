#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "graph/graph.h"

namespace vtlcmd::runner {

/// By port of a graph, the text that a user gives for it.
using TextsByPort = std::vector<std::optional<std::string>>;

/// Has relative paths that begin with a user's text mean the working directory. A path begins where
/// the first of the texts that it is joined from comes from.
void lookUpTextsInWorkingDirectory(Graph& graph, const TextsByPort& texts);

/// The files that nodes to be evaluated read, as far as their paths stand in the graph or in a
/// user's text and aren't computed. Wants paths to be where they are looked up already.
std::vector<std::filesystem::path> filesReadBy(const Graph& graph, const TextsByPort& texts);

}  // namespace vtlcmd::runner

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "execution/session.h"
#include "graph/graph.h"

namespace vtlcmd::runner {

/// What the first line of a run's journal tells of it. The "key" in it says what the frames' values
/// follow from: the contents of files, texts and settings. Reads those files.
std::string runContent(const Graph& graph, const RunSettings& settings,
                       const std::filesystem::path& plugIn, std::uint32_t printLimit);

/// The same of a run whose graph or plug-in couldn't be loaded.
std::string unloadedRunContent(const std::filesystem::path& graphFile);

/// The line's "times": who runs it, with which words, when, and for the how manieth time.
std::string runTimes(const std::vector<std::string>& arguments, std::uint64_t attempt = 1);

}  // namespace vtlcmd::runner

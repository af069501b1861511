#pragma once

#include <string>

namespace vtlcmd::runner {

/// What help calls the form of graph files.
inline constexpr const char* graphFormTopic = "graph";

/// One line on what a graph file is.
inline constexpr const char* graphFormSummary = "a compute graph as a JSON file";

/// The form of graph files in words, for help and for the manual. Headings end in a colon, what
/// belongs to them is indented by two blanks.
std::string graphForm();

}  // namespace vtlcmd::runner

#pragma once

#include <string>
#include <vector>

#include "graph/path_sources.h"

namespace vtlcmd::runner {

/// Says, a text a port, how vectors are written that a user has given in another notation, like
/// `[1,2,3]`, `{1f, 2f}` or `1 2 3`, which the plug-in will refuse.
std::vector<std::string> vectorNotationHints(const Graph& graph, const TextsByPort& texts);

}  // namespace vtlcmd::runner

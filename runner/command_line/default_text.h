#pragma once

#include <optional>
#include <string>

#include "graph/graph.h"

namespace vtlcmd::runner {

/// The text that gives a port its default value when it is set with `-s`. Nothing when the port has
/// no default, or none that a text can give: a port takes no text of an infinity, of what
/// is no number or of a number below the smallest normal one.
std::optional<std::string> defaultAsText(const GraphPort& port);

}  // namespace vtlcmd::runner

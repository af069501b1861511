#pragma once

#include <string>

#include "text/load_error.h"

namespace vtlcmd::runner {

/// A graph file that can't be used. The text names the place, like `$.nodes[3].op: ...`.
class GraphError : public LoadError {
 public:
  GraphError(const std::string& place, const std::string& text) : LoadError(place + ": " + text) {}
};

}  // namespace vtlcmd::runner

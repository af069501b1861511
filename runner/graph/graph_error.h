#pragma once

#include <stdexcept>
#include <string>

namespace vtlcmd {

/// A graph file that can't be used. The text names the place, like `$.nodes[3].op: ...`.
class GraphError : public std::runtime_error {
 public:
  GraphError(const std::string& place, const std::string& text)
      : std::runtime_error(place + ": " + text) {}
};

}  // namespace vtlcmd

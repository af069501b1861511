#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "graph/path_sources.h"
#include "vtlcmd/host/port_value_map.h"

namespace vtlcmd::runner {

/// Refuses, by UsageError, to read the standard input twice: for the graph that a command line
/// names and for the texts of ports, as `PORT=PATH`.
void refuseSharedInput(const std::string& graph, const std::vector<std::string>& assignments);

/// The texts that a user gives for ports, sorted into the two maps of the plug-in.
class PortTexts {
 public:
  /// The graph must outlive this.
  explicit PortTexts(const Graph& graph);

  /// From `PORT=TEXT`, for an input. A later text for a port replaces the earlier. Throws
  /// UsageError for an unknown port and for one whose value comes from other options.
  void setInput(const std::string& assignment);
  /// The same for a Job port.
  void setJob(const std::string& assignment);
  /// From `PORT=PATH`: the text is the content of a file without its last line end, of the
  /// standard input for `-`. The port is of either kind. A NUL character in it is refused.
  void setFromFile(const std::string& assignment);

  const PortValueMap& inputs() const noexcept { return inputs_; }
  const PortValueMap& jobs() const noexcept { return jobs_; }
  TextsByPort byPort() const;
  /// The files that texts came from.
  const std::vector<std::filesystem::path>& files() const noexcept { return files_; }

 private:
  const GraphPort& findPort(const std::string& name) const;
  void set(const GraphPort& port, const std::string& text);

  const Graph& graph_;
  std::map<std::string_view, const GraphPort*> ports_;
  PortValueMap inputs_;
  PortValueMap jobs_;
  std::vector<std::filesystem::path> files_;
};

}  // namespace vtlcmd::runner

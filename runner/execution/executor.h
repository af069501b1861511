#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "execution/frame_record.h"
#include "graph/graph.h"
#include "logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Runs a graph. What nodes complain of goes to the logger as messages of the graph system, which
/// it counts.
class Executor {
 public:
  using OnRead = std::function<void(const std::filesystem::path&)>;

  /// Graph and logger must outlive the executor. `onRead` is told of each file before a node reads
  /// it.
  Executor(const Graph& graph, VtlCmdLogger& logger, OnRead onRead);

  struct Result {
    /// By slot; empty when a node failed or the frame is abandoned: the run ends there.
    std::optional<std::vector<Orvel::Value>> values;
    Failure failure = Failure::none;
  };

  /// Evaluates all nodes from the values of the ports.
  Result run(const std::vector<Orvel::Value>& portValues) const;

 private:
  using Slots = std::vector<std::optional<Orvel::Value>>;

  /// By parameter, the types of its sources.
  using ArgumentTypes = std::vector<std::vector<ValueType>>;

  Orvel::Value evaluate(const GraphNode& node, const ArgumentTypes& types,
                        const Slots& slots) const;

  const Graph& graph_;
  VtlCmdLogger& logger_;
  /// By node.
  std::vector<ArgumentTypes> types_;
  OnRead onRead_;
};

}  // namespace vtlcmd::runner

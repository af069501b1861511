#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "execution/failure.h"
#include "execution/file_stamp.h"
#include "graph/graph.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Runs a graph. What nodes complain of goes to the logger as messages of the graph system, which
/// it counts. A node whose value doesn't depend on the frame is evaluated by the first run only:
/// the later ones have the same value and messages, unless a file that such a node has read has
/// changed.
class Executor {
 public:
  using OnRead = std::function<void(const std::filesystem::path&)>;

  /// Graph and logger must outlive the executor. `onRead` is told of each file before a node reads
  /// it.
  Executor(const Graph& graph, VtlCmdLogger& logger, OnRead onRead);

  struct Result {
    /// By output; empty when a node failed or the frame is abandoned: the run ends there.
    std::optional<std::vector<Orvel::Value>> outputs;
    Failure failure = Failure::none;
  };

  /// Evaluates the nodes in the graph's order from the values of the ports.
  Result run(const std::vector<Orvel::Value>& portValues);

 private:
  /// By parameter, the types of its sources.
  using ArgumentTypes = std::vector<std::vector<ValueType>>;

  /// What an evaluation gave and told.
  struct Evaluation {
    Orvel::Value value;
    std::vector<std::string> warnings;
    /// As they were before they were read.
    std::vector<FileStamp> files;
  };

  void forgetIfFilesChanged();
  Result evaluateAll();
  Orvel::Value valueOf(std::size_t node);
  Evaluation evaluate(std::size_t node) const;
  void warn(const std::string& sentence) const;

  const Graph& graph_;
  VtlCmdLogger& logger_;
  /// By node.
  std::vector<ArgumentTypes> types_;
  OnRead onRead_;
  /// By node.
  std::vector<bool> dependsOnFrame_;
  /// By node, what stays the same in later runs.
  std::vector<std::optional<Evaluation>> kept_;
  /// Values of ports and nodes while a run lasts, as the graph counts them; those that aren't
  /// evaluated yet are empty.
  std::vector<std::optional<Orvel::Value>> slots_;
};

}  // namespace vtlcmd::runner

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nodes/node_operation.h"
#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

struct GraphPort {
  std::string name;
  ValueType type;
  bool isJob = false;
  std::string description;
  std::optional<Orvel::Value> defaultValue;
  /// The default as JSON, the way it stands in the file; empty when there is none.
  std::string defaultText;
};

struct GraphNode {
  std::string name;
  const NodeOperation* operation = nullptr;
  /// By parameter, the slots of its sources: one slot, or any number for a list parameter.
  std::vector<std::vector<std::size_t>> sources;
  ValueType type;
  /// Of a constant.
  std::optional<Orvel::Value> literal;
  /// Where a relative path that the node is given is looked up; empty for the working directory.
  std::filesystem::path pathFolder;
};

struct GraphOutput {
  std::string name;
  std::string description;
  std::size_t source = 0;
};

/// A graph that was checked: every source exists, types fit, no nodes form a cycle. A slot is
/// the place of a value during a run: that of each port, in order, then that of each node.
struct Graph {
  std::string name;
  /// What it was read from.
  std::string text;
  /// Inputs, then Job ports.
  std::vector<GraphPort> ports;
  std::vector<GraphNode> nodes;
  std::vector<GraphOutput> outputs;
  /// Indices of nodes, each behind its sources.
  std::vector<std::size_t> order;

  std::size_t slotOfNode(std::size_t node) const noexcept { return ports.size() + node; }
  const ValueType& typeOfSlot(std::size_t slot) const noexcept {
    return slot < ports.size() ? ports[slot].type : nodes[slot - ports.size()].type;
  }
};

/// Reads and checks the text of a graph file. Throws GraphError.
Graph parseGraph(std::string_view text);

}  // namespace vtlcmd::runner

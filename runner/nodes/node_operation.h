#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "nodes/type_classes.h"
#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

struct Parameter {
  std::string_view name;
  const TypeClass* accepts;
  /// Takes one source or more, as a list.
  bool isList = false;
};

/// The types that meet in a node: by parameter, those of its sources.
struct NodeTypes {
  std::span<const std::vector<ValueType>> arguments;
  /// What the node's own `type` says.
  std::optional<ValueType> declared;

  const ValueType& operator[](std::size_t parameter) const { return arguments[parameter].front(); }
};

/// One evaluation of a node.
struct NodeCall {
  const NodeTypes& types;
  const ValueType& resultType;
  /// By parameter; the values have the types of `types`.
  std::span<const std::vector<Orvel::Value>> arguments;
  /// The value written in the graph file; null but for a constant.
  const Orvel::Value* literal;
  /// Where a relative path is looked up.
  const std::filesystem::path& pathFolder;
  /// Tells the user something about a result that is valid all the same.
  const std::function<void(const std::string&)>& warn;
  /// To be told of each file before it is read.
  const std::function<void(const std::filesystem::path&)>& onRead;

  const Orvel::Value& operator[](std::size_t parameter) const {
    return arguments[parameter].front();
  }
};

/// A node that can't give a value, in words for the user.
class NodeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a node declares besides its inputs.
enum class NodeSetting {
  none,
  /// The key `type`: the type of the result.
  type,
  /// The keys `type` and `value`.
  typeAndValue,
};

/// A row of the node table.
struct NodeOperation {
  std::string_view name;
  std::vector<Parameter> parameters;
  NodeSetting setting;
  /// The type of the result. Sources are of their parameters' classes already; throws
  /// std::invalid_argument when they don't fit together.
  ValueType (*resultType)(const NodeTypes&);
  /// Gives a value of the result type. Throws NodeError and what the libraries throw.
  Orvel::Value (*evaluate)(const NodeCall&);
  /// One sentence.
  std::string_view help;
};

}  // namespace vtlcmd::runner

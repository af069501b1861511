#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/path_sources.h"
#include "values/value_type.h"

namespace vtlcmd::runner {

/// Where the value of a port comes from.
enum class PortSource {
  text,
  /// Other options than those that give texts.
  options,
  /// The default in the graph or the plug-in's own.
  defaultValue,
  /// Nothing sets such a port.
  nothing,
};

struct PortKind {
  PortSource source;
  /// Completes "takes no text: ".
  std::string_view instead;
};

const PortKind& portKindOf(const ValueType& type);

/// Says, a text a port, which ports no text can set though a user gave one, or though nothing else
/// sets them; and what to do instead.
std::vector<std::string> unsettablePorts(const Graph& graph, const TextsByPort& texts);

}  // namespace vtlcmd::runner

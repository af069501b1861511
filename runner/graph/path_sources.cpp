#include "graph/path_sources.h"

#include "readers/data_file.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

bool isText(const ValueType& type) { return type.element == valueType<Orvel::String>().name; }

/// The first source of a node that gives text.
std::optional<std::size_t> firstText(const Graph& graph, const GraphNode& node) {
  for (const std::vector<std::size_t>& sources : node.sources) {
    for (const std::size_t slot : sources) {
      if (isText(graph.typeOfSlot(slot))) return slot;
    }
  }
  return std::nullopt;
}

/// The port, or the node that makes a text of something else, where a slot's text begins.
std::size_t beginningOf(const Graph& graph, std::size_t slot) {
  while (slot >= graph.ports.size()) {
    const std::optional<std::size_t> source =
        firstText(graph, graph.nodes[slot - graph.ports.size()]);
    if (!source) break;
    slot = *source;
  }
  return slot;
}

/// The slot that a node takes a path from.
std::optional<std::size_t> pathSlot(const GraphNode& node) {
  for (std::size_t i = 0; i < node.sources.size(); ++i) {
    if (node.operation->parameters[i].accepts == &type_classes::path)
      return node.sources[i].front();
  }
  return std::nullopt;
}

/// The text in a slot, unless it is computed.
std::optional<std::string> knownText(const Graph& graph, std::size_t slot,
                                     const TextsByPort& texts) {
  const bool isPort = slot < graph.ports.size();
  if (isPort && texts[slot]) return texts[slot];
  const std::optional<Orvel::Value>& written =
      isPort ? graph.ports[slot].defaultValue : graph.nodes[slot - graph.ports.size()].literal;
  if (!written) return std::nullopt;
  return standardText(written->getString());
}

}  // namespace

void lookUpTextsInWorkingDirectory(Graph& graph, const TextsByPort& texts) {
  for (GraphNode& node : graph.nodes) {
    const std::optional<std::size_t> slot = pathSlot(node);
    if (!slot) continue;
    const std::size_t beginning = beginningOf(graph, *slot);
    if (beginning < graph.ports.size() && texts[beginning]) node.pathFolder.clear();
  }
}

std::vector<std::filesystem::path> filesReadBy(const Graph& graph, const TextsByPort& texts) {
  std::vector<std::filesystem::path> files;
  for (const std::size_t index : graph.order) {
    const GraphNode& node = graph.nodes[index];
    const std::optional<std::size_t> slot = pathSlot(node);
    const std::optional<std::string> text = slot ? knownText(graph, *slot, texts) : std::nullopt;
    if (text) files.push_back(valuePathFrom(node.pathFolder / filePath(*text)).file);
  }
  return files;
}

}  // namespace vtlcmd::runner

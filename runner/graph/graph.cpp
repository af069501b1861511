#include "graph/graph.h"

#include <algorithm>
#include <map>
#include <set>

#include "graph/evaluation_order.h"
#include "graph/graph_error.h"
#include "graph/json_document.h"
#include "graph/json_place.h"
#include "graph/literal.h"
#include "nodes/node_table.h"
#include "text/library_text.h"
#include "text/near_misses.h"

namespace vtlcmd::runner {
namespace {

ValueType typeAt(const JsonPlace& json) {
  try {
    return parseValueType(json.text());
  } catch (const std::invalid_argument& error) {
    json.fail(error.what());
  }
}

std::string descriptionAt(const JsonPlace& json) {
  const std::optional<JsonPlace> description = json.member("description");
  return description ? description->text() : std::string();
}

/// Builds a graph from its document in the order in which the parts need each other.
class GraphBuilder {
 public:
  explicit GraphBuilder(JsonPlace root) : root_(std::move(root)) {}

  Graph build() {
    root_.allowMembers({"$schema", "name", "description", "inputs", "jobs", "nodes", "outputs"});
    if (const auto name = root_.member("name")) graph_.name = name->name();
    addPorts("inputs", false);
    addPorts("jobs", true);
    nodePlaces_ = root_.listMember("nodes");
    for (const JsonPlace& place : nodePlaces_) addNode(place);
    for (std::size_t node = 0; node < graph_.nodes.size(); ++node) connect(node);
    putInOrder();
    for (const std::size_t node : graph_.order) deriveType(node);
    for (const JsonPlace& place : root_.listMember("outputs")) addOutput(place);
    return std::move(graph_);
  }

 private:
  void addPorts(std::string_view list, bool isJob) {
    for (const JsonPlace& place : root_.listMember(list)) {
      place.allowMembers({"name", "description", "type", "default"});
      GraphPort port;
      port.name = addSlot(place.requiredMember("name"));
      if (port.name.find('=') != std::string::npos)
        place.requiredMember("name").fail("the name of a port can't hold '='");
      port.type = typeAt(place.requiredMember("type"));
      port.isJob = isJob;
      port.description = descriptionAt(place);
      if (const auto value = place.member("default")) {
        port.defaultValue = literalValue(port.type, *value);
        port.defaultText = value->json();
      }
      graph_.ports.push_back(std::move(port));
    }
  }

  /// Gives the next slot a name.
  std::string addSlot(const JsonPlace& name) {
    if (!slots_.emplace(name.name(), slots_.size()).second)
      name.fail("the name " + inQuotes(name.name()) + " is taken");
    return name.name();
  }

  void addNode(const JsonPlace& place) {
    place.allowMembers({"name", "description", "op", "type", "value", "in"});
    GraphNode node;
    node.name = addSlot(place.requiredMember("name"));
    const JsonPlace op = place.requiredMember("op");
    node.operation = findOperation(op.text());
    if (node.operation == nullptr)
      op.fail(inQuotes(op.text()) + " is no operation" + nearMissHint(op.text(), operationNames()));
    graph_.nodes.push_back(std::move(node));
  }

  void connect(std::size_t index) {
    GraphNode& node = graph_.nodes[index];
    const std::vector<Parameter>& parameters = node.operation->parameters;
    node.sources.resize(parameters.size());
    const std::optional<JsonPlace> in = nodePlaces_[index].member("in");
    if (in) refuseUnknownParameters(*in, *node.operation);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      const std::optional<JsonPlace> source = in ? in->member(parameters[i].name) : std::nullopt;
      if (!source) {
        nodePlaces_[index].fail(inQuotes(node.operation->name) + " needs the input " +
                                inQuotes(parameters[i].name));
      }
      for (const JsonPlace& one : sourcesOf(parameters[i], *source))
        node.sources[i].push_back(slotNamed(one));
    }
  }

  static void refuseUnknownParameters(const JsonPlace& in, const NodeOperation& operation) {
    std::vector<std::string> known;
    for (const Parameter& parameter : operation.parameters) known.emplace_back(parameter.name);
    for (const auto& [key, place] : in.members()) {
      if (std::find(known.begin(), known.end(), key) != known.end()) continue;
      place.fail(inQuotes(operation.name) + " has no input " + inQuotes(key) +
                 nearMissHint(key, known));
    }
  }

  static std::vector<JsonPlace> sourcesOf(const Parameter& parameter, const JsonPlace& json) {
    if (!parameter.isList) return {json};
    std::vector<JsonPlace> sources = json.elements();
    if (sources.empty()) json.fail("at least one source is needed");
    return sources;
  }

  std::size_t slotNamed(const JsonPlace& source) const {
    const auto found = slots_.find(source.text());
    if (found != slots_.end()) return found->second;
    std::vector<std::string> known;
    for (const auto& [name, slot] : slots_) known.push_back(name);
    source.fail("there is no port or node " + inQuotes(source.text()) +
                nearMissHint(source.text(), known));
  }

  void putInOrder() {
    Dependencies dependencies(graph_.nodes.size());
    for (std::size_t node = 0; node < graph_.nodes.size(); ++node) {
      for (const std::vector<std::size_t>& sources : graph_.nodes[node].sources) {
        for (const std::size_t slot : sources) {
          if (slot >= graph_.ports.size()) dependencies[node].push_back(slot - graph_.ports.size());
        }
      }
    }
    const std::vector<std::size_t> cycle = findCycle(dependencies);
    if (!cycle.empty()) {
      std::string way;
      for (const std::size_t node : cycle) way += inQuotes(graph_.nodes[node].name) + " -> ";
      nodePlaces_[cycle.front()].fail("the nodes form a cycle: " + way +
                                      inQuotes(graph_.nodes[cycle.front()].name));
    }
    graph_.order = evaluationOrder(dependencies);
  }

  void deriveType(std::size_t index) {
    GraphNode& node = graph_.nodes[index];
    const JsonPlace& place = nodePlaces_[index];
    std::vector<std::vector<ValueType>> arguments(node.sources.size());
    for (std::size_t i = 0; i < node.sources.size(); ++i) {
      const Parameter& parameter = node.operation->parameters[i];
      for (std::size_t k = 0; k < node.sources[i].size(); ++k) {
        const ValueType& type = graph_.typeOfSlot(node.sources[i][k]);
        if (!parameter.accepts->contains(type)) {
          const JsonPlace source = place.requiredMember("in").requiredMember(parameter.name);
          (parameter.isList ? source.elements()[k] : source)
              .fail("the input takes " + std::string(parameter.accepts->words) + ", " +
                    inQuotes(slotName(node.sources[i][k])) + " gives " + nameOf(type));
        }
        arguments[i].push_back(type);
      }
    }
    const NodeTypes types{arguments, declaredType(place, *node.operation)};
    try {
      node.type = node.operation->resultType(types);
    } catch (const std::invalid_argument& error) {
      place.fail(error.what());
    }
    if (node.operation->setting == NodeSetting::typeAndValue)
      node.literal = literalValue(node.type, place.requiredMember("value"));
    else if (const auto value = place.member("value"))
      value->fail(inQuotes(node.operation->name) + " takes no value");
  }

  static std::optional<ValueType> declaredType(const JsonPlace& place,
                                               const NodeOperation& operation) {
    if (operation.setting != NodeSetting::none) return typeAt(place.requiredMember("type"));
    if (const auto type = place.member("type"))
      type->fail(inQuotes(operation.name) + " takes no type");
    return std::nullopt;
  }

  const std::string& slotName(std::size_t slot) const {
    return slot < graph_.ports.size() ? graph_.ports[slot].name
                                      : graph_.nodes[slot - graph_.ports.size()].name;
  }

  void addOutput(const JsonPlace& place) {
    place.allowMembers({"name", "description", "from"});
    const JsonPlace name = place.requiredMember("name");
    if (!outputNames_.insert(name.name()).second)
      name.fail("the name " + inQuotes(name.name()) + " is taken");
    graph_.outputs.push_back(
        {name.name(), descriptionAt(place), slotNamed(place.requiredMember("from"))});
  }

  JsonPlace root_;
  Graph graph_;
  std::vector<JsonPlace> nodePlaces_;
  std::map<std::string, std::size_t> slots_;
  std::set<std::string> outputNames_;
};

}  // namespace

Graph parseGraph(std::string_view text) {
  const JsonDocument document(text);
  Graph graph = GraphBuilder(document.root()).build();
  graph.text = text;
  return graph;
}

}  // namespace vtlcmd::runner

#include "execution/executor.h"

#include <new>
#include <utility>

#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

// The graph system's codes for how bad a message is.
constexpr std::int32_t severityError = 0;
constexpr std::int32_t severityWarning = 1;

std::string sentenceAbout(const GraphNode& node, const std::string& text) {
  return "Node " + inQuotes(node.name) + " (" + std::string(node.operation->name) + "): " + text +
         ".";
}

}  // namespace

Executor::Executor(const Graph& graph, VtlCmdLogger& logger) : graph_(graph), logger_(logger) {}

std::optional<std::vector<Orvel::Value>> Executor::run(
    const std::vector<Orvel::Value>& portValues) const {
  const CountingScope counting(logger_);
  Slots slots(portValues.begin(), portValues.end());
  slots.resize(graph_.ports.size() + graph_.nodes.size());
  for (const std::size_t index : graph_.order) {
    const GraphNode& node = graph_.nodes[index];
    const auto fail = [&](const std::string& text) {
      logger_.addVantrelMessage(severityError, sentenceAbout(node, text));
    };
    try {
      slots[graph_.slotOfNode(index)] = evaluate(node, slots);
    } catch (const std::bad_alloc&) {
      fail("there isn't enough memory for the result");
      return std::nullopt;
    } catch (const std::length_error&) {
      fail("there isn't enough memory for the result");
      return std::nullopt;
    } catch (const std::exception& error) {
      fail(error.what());
      return std::nullopt;
    }
  }
  std::vector<Orvel::Value> values;
  for (std::optional<Orvel::Value>& slot : slots) values.push_back(*std::move(slot));
  return values;
}

Orvel::Value Executor::evaluate(const GraphNode& node, const Slots& slots) const {
  std::vector<std::vector<ValueType>> types(node.sources.size());
  std::vector<std::vector<Orvel::Value>> arguments(node.sources.size());
  for (std::size_t i = 0; i < node.sources.size(); ++i) {
    for (const std::size_t slot : node.sources[i]) {
      types[i].push_back(graph_.typeOfSlot(slot));
      arguments[i].push_back(*slots[slot]);
    }
  }
  const NodeTypes nodeTypes{types, std::nullopt};
  const std::function<void(const std::string&)> warn = [&](const std::string& text) {
    logger_.addVantrelMessage(severityWarning, sentenceAbout(node, text));
  };
  const Orvel::Value* literal = node.literal ? &*node.literal : nullptr;
  return node.operation->evaluate(
      {nodeTypes, node.type, arguments, literal, node.pathFolder, warn});
}

}  // namespace vtlcmd::runner

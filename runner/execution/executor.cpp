#include "execution/executor.h"

#include <exception>
#include <utility>

#include "execution/caught_failure.h"
#include "platform/interrupt.h"
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

Executor::Executor(const Graph& graph, VtlCmdLogger& logger, OnRead onRead)
    : graph_(graph), logger_(logger), onRead_(std::move(onRead)) {
  types_.reserve(graph.nodes.size());
  for (const GraphNode& node : graph.nodes) {
    ArgumentTypes& types = types_.emplace_back(node.sources.size());
    for (std::size_t i = 0; i < node.sources.size(); ++i) {
      for (const std::size_t slot : node.sources[i]) types[i].push_back(graph.typeOfSlot(slot));
    }
  }
}

Executor::Result Executor::run(const std::vector<Orvel::Value>& portValues) const {
  const CountingScope counting(logger_);
  Slots slots;
  slots.reserve(graph_.ports.size() + graph_.nodes.size());
  slots.assign(portValues.begin(), portValues.end());
  slots.resize(graph_.ports.size() + graph_.nodes.size());
  for (const std::size_t index : graph_.order) {
    if (frameAbandoned()) return {};
    const GraphNode& node = graph_.nodes[index];
    try {
      slots[graph_.slotOfNode(index)] = evaluate(node, types_[index], slots);
    } catch (const FrameAbandoned&) {
      return {};
    } catch (const std::exception&) {
      const CaughtFailure caught = caughtFailure(logger_.currentEntry().frameText);
      logger_.addVantrelMessage(severityError, sentenceAbout(node, caught.text));
      return {std::nullopt, caught.failure};
    }
  }
  Result result{std::vector<Orvel::Value>()};
  result.values->reserve(slots.size());
  for (std::optional<Orvel::Value>& slot : slots) result.values->push_back(*std::move(slot));
  return result;
}

Orvel::Value Executor::evaluate(const GraphNode& node, const ArgumentTypes& types,
                                const Slots& slots) const {
  std::vector<std::vector<Orvel::Value>> arguments(node.sources.size());
  for (std::size_t i = 0; i < node.sources.size(); ++i) {
    arguments[i].reserve(node.sources[i].size());
    for (const std::size_t slot : node.sources[i]) arguments[i].push_back(*slots[slot]);
  }
  const NodeTypes nodeTypes{types, std::nullopt};
  const std::function<void(const std::string&)> warn = [&](const std::string& text) {
    logger_.addVantrelMessage(severityWarning, sentenceAbout(node, text));
  };
  const Orvel::Value* literal = node.literal ? &*node.literal : nullptr;
  return node.operation->evaluate(
      {nodeTypes, node.type, arguments, literal, node.pathFolder, warn, onRead_});
}

}  // namespace vtlcmd::runner

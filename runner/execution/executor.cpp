#include "execution/executor.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "execution/caught_failure.h"
#include "graph/frame_dependence.h"
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
    : graph_(graph),
      logger_(logger),
      onRead_(std::move(onRead)),
      dependsOnFrame_(frameDependence(graph)),
      kept_(graph.nodes.size()) {
  types_.reserve(graph.nodes.size());
  for (const GraphNode& node : graph.nodes) {
    ArgumentTypes& types = types_.emplace_back(node.sources.size());
    for (std::size_t i = 0; i < node.sources.size(); ++i) {
      for (const std::size_t slot : node.sources[i]) types[i].push_back(graph.typeOfSlot(slot));
    }
  }
}

Executor::Result Executor::run(const std::vector<Orvel::Value>& portValues) {
  const CountingScope counting(logger_);
  forgetIfFilesChanged();
  slots_.assign(portValues.begin(), portValues.end());
  slots_.resize(graph_.ports.size() + graph_.nodes.size());
  Result result = evaluateAll();
  slots_.clear();
  return result;
}

Executor::Result Executor::evaluateAll() {
  for (const std::size_t index : graph_.order) {
    if (frameAbandoned()) return {};
    try {
      slots_[graph_.slotOfNode(index)] = valueOf(index);
    } catch (const FrameAbandoned&) {
      return {};
    } catch (const std::exception&) {
      const CaughtFailure caught = caughtFailure(logger_.currentEntry().frameText);
      logger_.addVantrelMessage(severityError, sentenceAbout(graph_.nodes[index], caught.text));
      return {std::nullopt, caught.failure};
    }
  }
  Result result{std::vector<Orvel::Value>()};
  result.outputs->reserve(graph_.outputs.size());
  for (const GraphOutput& output : graph_.outputs)
    result.outputs->push_back(*slots_[output.source]);
  return result;
}

void Executor::forgetIfFilesChanged() {
  const auto hasChanged = [](const std::optional<Evaluation>& kept) {
    return kept && std::any_of(kept->files.begin(), kept->files.end(),
                               [](const FileStamp& stamp) { return stampOf(stamp.file) != stamp; });
  };
  if (std::any_of(kept_.begin(), kept_.end(), hasChanged)) kept_.assign(kept_.size(), std::nullopt);
}

Orvel::Value Executor::valueOf(std::size_t node) {
  if (dependsOnFrame_[node]) return evaluate(node).value;
  std::optional<Evaluation>& kept = kept_[node];
  if (!kept) return kept.emplace(evaluate(node)).value;
  for (const FileStamp& stamp : kept->files) onRead_(stamp.file);
  for (const std::string& sentence : kept->warnings) warn(sentence);
  return kept->value;
}

Executor::Evaluation Executor::evaluate(std::size_t node) const {
  const GraphNode& declared = graph_.nodes[node];
  std::vector<std::vector<Orvel::Value>> arguments(declared.sources.size());
  for (std::size_t i = 0; i < declared.sources.size(); ++i) {
    arguments[i].reserve(declared.sources[i].size());
    for (const std::size_t slot : declared.sources[i]) arguments[i].push_back(*slots_[slot]);
  }
  const NodeTypes nodeTypes{types_[node], std::nullopt};
  std::vector<std::string> warnings;
  const std::function<void(const std::string&)> onWarning = [&](const std::string& text) {
    warnings.push_back(sentenceAbout(declared, text));
    warn(warnings.back());
  };
  std::vector<FileStamp> files;
  const OnRead onRead = [&](const std::filesystem::path& file) {
    onRead_(file);
    files.push_back(stampOf(file));
  };
  const Orvel::Value* literal = declared.literal ? &*declared.literal : nullptr;
  const Orvel::Value value = declared.operation->evaluate(
      {nodeTypes, declared.type, arguments, literal, declared.pathFolder, onWarning, onRead});
  return {value, std::move(warnings), std::move(files)};
}

void Executor::warn(const std::string& sentence) const {
  logger_.addVantrelMessage(severityWarning, sentence);
}

}  // namespace vtlcmd::runner

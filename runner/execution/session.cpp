#include "execution/session.h"

#include <algorithm>
#include <exception>

#include "execution/interrupt.h"
#include "orvel_sdk/any_bridge.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {

Session::Session(const Graph& graph, const PlugIn::Translation& translation,
                 const RunSettings& settings, VtlCmdLogger& logger)
    : graph_(graph),
      translation_(translation),
      settings_(settings),
      logger_(logger),
      executor_(graph, logger),
      context_{
          &settings.inputValues, &settings.jobValues,    0,      0, 1 / settings.framesPerSecond,
          settings.sceneFile,    settings.secondaryPath, &logger} {
  for (const GraphPort& port : graph.ports) {
    ports_.push_back({libraryText(port.name), libraryTypeOf(port.type),
                      port.defaultValue ? Orvel::toAny(*port.defaultValue) : Any()});
  }
}

RunOutcome Session::run(const std::function<void(std::size_t)>& beforeFrame,
                        const std::function<void()>& afterFrame) {
  const GroupScope group(logger_, graph_.name);
  logger_.setLoaded(true);
  bool succeeded = true;
  for (std::size_t i = 0; i < settings_.frames.size(); ++i) {
    beforeFrame(i);
    const EntryScope entry(logger_, describe(i));
    succeeded &= runFrame(settings_.frames[i]);
    afterFrame();
    if (interruptRequested()) {
      logger_.setInterrupted(true);
      return RunOutcome::interrupted;
    }
  }
  logger_.setFinished(true);
  return succeeded ? RunOutcome::succeeded : RunOutcome::failed;
}

RunDescription Session::describe(std::size_t frameIndex) const {
  RunDescription description;
  description.graphName = graph_.name;
  description.graphFile = fileText(settings_.graphFile);
  description.arguments = settings_.arguments;
  description.frameIndex = static_cast<std::uint32_t>(frameIndex);
  description.frameCount = static_cast<std::uint32_t>(settings_.frames.size());
  description.inputCount = graph_.ports.size();
  description.outputCount = graph_.outputs.size();
  description.inputValues = settings_.inputValues;
  description.jobValues = settings_.jobValues;
  description.properties.emplace("frames_per_second",
                                 libraryText(shortestText(settings_.framesPerSecond)));
  description.printLimit = logger_.printLimit;
  description.frameText = shortestText(settings_.frames[frameIndex]);
  description.verbosity = settings_.verbosity;
  description.throughAny = settings_.outputForm == OutputForm::any ? 1 : 0;
  description.sceneFile = settings_.sceneFile;
  description.secondaryPath = settings_.secondaryPath;
  return description;
}

bool Session::runFrame(double frame) {
  const std::size_t firstMessage = logger_.messages.size();
  context_.frame = frame;
  context_.time = context_.frame * context_.frameLength;
  const std::optional<std::vector<Orvel::Value>> inputs = setInputs();
  logger_.setInputsSet(inputs.has_value());
  if (inputs) {
    const std::optional<std::vector<Orvel::Value>> values = executor_.run(*inputs);
    logger_.setExecuted(values.has_value());
    if (values) reportOutputs(*values);
    logger_.setOutputsReported(values.has_value());
  }
  logger_.setWithoutErrors(!hasMessageUpTo(levelError, firstMessage));
  const bool tolerable = !settings_.strict || !hasMessageUpTo(levelWarning, firstMessage);
  return tolerable && logger_.currentEntry().succeeded();
}

/// Every port gets its turn, so that the user reads of all bad texts at once.
std::optional<std::vector<Orvel::Value>> Session::setInputs() {
  std::vector<Orvel::Value> values;
  for (std::size_t i = 0; i < ports_.size(); ++i) {
    if (std::optional<Orvel::Value> value = setInput(i)) values.push_back(*std::move(value));
  }
  if (values.size() != ports_.size()) return std::nullopt;
  return values;
}

std::optional<Orvel::Value> Session::setInput(std::size_t index) {
  const Port& port = ports_[index];
  const GraphPort& declared = graph_.ports[index];
  const std::size_t messagesBefore = logger_.messages.size();
  const std::string who = std::string(declared.isJob ? "Job" : "input") + " port " +
                          inQuotes(declared.name) + " [" + nameOf(declared.type) + "]";
  InputValueData data{nullptr, &port.name, declared.isJob, port.defaultValue, &context_};
  Any value;
  try {
    if (translation_.setInputValue(port.type, value, &data))
      return Orvel::fromAny(port.type, value);
  } catch (const std::exception& error) {
    logger_.addMessage(vtlcmdSource, levelError, "Setting " + who + " failed: " + error.what());
  }
  if (logger_.messages.size() == messagesBefore)
    logger_.addMessage(vtlcmdSource, levelError, "The plug-in gave no value to " + who + ".");
  return std::nullopt;
}

/// An output that the plug-in has no report for leaves a warning and doesn't stop the others.
void Session::reportOutputs(const std::vector<Orvel::Value>& values) {
  for (const GraphOutput& output : graph_.outputs) {
    try {
      reportOutput(translation_, output.name, values[output.source], settings_.outputForm,
                   context_);
    } catch (const std::exception& error) {
      logger_.addMessage(
          vtlcmdSource, levelError,
          "Reporting output port " + inQuotes(output.name) + " failed: " + error.what());
    }
  }
}

bool Session::hasMessageUpTo(LogLevel level, std::size_t firstMessage) const {
  return std::any_of(logger_.messages.begin() + static_cast<std::ptrdiff_t>(firstMessage),
                     logger_.messages.end(), [level](const LogMessage& message) {
                       return message.level >= levelCritical && message.level <= level;
                     });
}

}  // namespace vtlcmd::runner

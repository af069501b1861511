#include "execution/session.h"

#include <algorithm>
#include <chrono>
#include <exception>

#include "execution/caught_failure.h"
#include "execution/message_distribution.h"
#include "platform/file_identity.h"
#include "platform/interrupt.h"
#include "text/library_text.h"
#include "text/shortest_text.h"
#include "values/exact_value.h"
#include "values/value_picture.h"
#include "vtlcmd/stand_in/any_bridge.h"

namespace vtlcmd::runner {
namespace {

std::string describe(const GraphPort& port) {
  return std::string(port.isJob ? "Job" : "input") + " port " + inQuotes(port.name) + " [" +
         nameOf(port.type) + "]";
}

}  // namespace

Session::Session(const Graph& graph, const PlugIn::Translation& translation,
                 const RunSettings& settings, VtlCmdLogger& logger)
    : graph_(graph),
      translation_(translation),
      settings_(settings),
      logger_(logger),
      group_(logger, graph.name),
      executor_(graph, logger, [this](const std::filesystem::path& file) { noteRead(file); }),
      context_{
          &settings.inputValues, &settings.jobValues,    0,      0, 1 / settings.framesPerSecond,
          settings.sceneFile,    settings.secondaryPath, &logger} {
  logger.setLoaded(true);
  for (const GraphPort& port : graph.ports) {
    ports_.push_back({libraryText(port.name), libraryTypeOf(port.type),
                      port.defaultValue ? Orvel::toAny(*port.defaultValue) : Any()});
  }
  for (const GraphOutput& output : graph.outputs) outputNames_.push_back(libraryText(output.name));
  description_.frameCount = static_cast<std::uint32_t>(settings.frames.wholeSize());
  description_.printLimit = logger.printLimit;
  description_.verbosity = settings.verbosity;
  description_.throughAny = settings.outputForm == OutputForm::any ? 1 : 0;
}

FrameRecord Session::run(std::size_t place) {
  logger_.messages.clear();
  describeFrame(place);
  const auto startTime = std::chrono::system_clock::now();
  const auto start = std::chrono::steady_clock::now();
  const EntryScope entry(logger_, description_);
  const std::uint64_t errorsBefore = logger_.errorCount;
  const std::uint64_t warningsBefore = logger_.warningCount;
  FrameRecord record = runFrame();
  record.errors = logger_.errorCount - errorsBefore;
  record.warnings = logger_.warningCount - warningsBefore;
  record.frameText = description_.frameText;
  if (settings_.recordFrames) {
    distributeMessages(logger_);
    record.entry = std::move(logger_.currentEntry());
  }
  logger_.currentGroup()->entries.clear();
  record.started = startTime;
  record.seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start - picturing_).count();
  return record;
}

void Session::describeFrame(std::size_t place) {
  context_.frame = settings_.frames[place];
  context_.time = context_.frame * context_.frameLength;
  description_.frameIndex = static_cast<std::uint32_t>(settings_.frames.placeInWhole(place));
  description_.frameText = shortestText(context_.frame);
}

FrameRecord Session::runFrame() {
  FrameRecord record;
  failure_ = Failure::none;
  filesRead_.clear();
  picturing_ = {};
  const bool areSet = setInputs();
  logger_.setInputsSet(areSet);
  if (areSet) {
    const Executor::Result result = executor_.run(inputs_);
    failure_ = result.failure;
    logger_.setExecuted(result.outputs.has_value());
    logger_.setInterrupted(!result.outputs && result.failure == Failure::none);
    if (result.outputs) {
      reportOutputs(*result.outputs, record);
      saveOutputs(*result.outputs);
    }
  }
  logger_.setWithoutErrors(!hasMessageUpTo(levelError));
  record.failure = failureOfFrame();
  record.filesRead = std::move(filesRead_);
  return record;
}

Failure Session::failureOfFrame() const {
  const bool isTolerable = !settings_.strict || !hasMessageUpTo(levelWarning);
  if (isTolerable && logger_.currentEntry().succeeded()) return Failure::none;
  if (logger_.currentEntry().interrupted) return Failure::transient;
  return failure_ == Failure::none ? Failure::permanent : failure_;
}

/// Every port gets its turn, so that the user reads of all bad texts at once.
bool Session::setInputs() {
  inputs_.clear();
  for (std::size_t i = 0; i < ports_.size(); ++i) {
    if (std::optional<Orvel::Value> value = setInput(i)) inputs_.push_back(*std::move(value));
  }
  return inputs_.size() == ports_.size();
}

std::optional<Orvel::Value> Session::setInput(std::size_t index) {
  const Port& port = ports_[index];
  const GraphPort& declared = graph_.ports[index];
  const std::size_t messagesBefore = logger_.messages.size();
  InputValueData data{nullptr, &port.name, declared.isJob, port.defaultValue, &context_};
  Any value;
  try {
    if (translation_.setInputValue(port.type, value, &data))
      return Orvel::fromAny(port.type, value);
  } catch (const std::exception&) {
    noteFailure("Setting " + describe(declared) + " failed: ");
  }
  if (logger_.messages.size() == messagesBefore)
    logger_.addMessage(vtlcmdSource, levelError,
                       "The plug-in gave no value to " + describe(declared) + ".");
  return std::nullopt;
}

/// An output that the plug-in has no report for leaves a warning and doesn't stop the others.
void Session::reportOutputs(const std::vector<Orvel::Value>& values, FrameRecord& record) {
  bool complete = true;
  for (std::size_t i = 0; i < outputNames_.size(); ++i) {
    if (frameAbandoned()) {
      logger_.setInterrupted(true);
      return;
    }
    const GraphOutput& output = graph_.outputs[i];
    const Orvel::Value& value = values[i];
    try {
      const bool isReported =
          reportOutput(translation_, outputNames_[i], value, settings_.outputForm, context_);
      complete &= isReported;
      if (isReported && settings_.recordFrames)
        record.values[output.name] =
            exactValue(graph_.typeOfSlot(output.source), value, settings_.elements);
    } catch (const std::exception&) {
      complete = false;
      noteFailure("Reporting output port " + inQuotes(output.name) + " failed: ");
    }
  }
  logger_.setOutputsReported(complete);
  if (settings_.recordFrames && isPictured()) recordPictures(values, record);
}

void Session::saveOutputs(const std::vector<Orvel::Value>& values) {
  for (const OutputSave& saving : settings_.saves) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (graph_.outputs[i].name == saving.output) save(saving, values[i]);
    }
  }
}

void Session::save(const OutputSave& saving, const Orvel::Value& value) {
  try {
    throwIfAbandoned();
    const std::string remark = saving.save(context_.frame, value, allFilesRead_);
    if (!remark.empty()) logger_.addMessage(vtlcmdSource, levelWarning, remark);
  } catch (const FrameAbandoned&) {
    logger_.setInterrupted(true);
  } catch (const std::exception&) {
    noteFailure("Saving output port " + inQuotes(saving.output) + " failed: ");
  }
}

/// Of the outputs whose values are recorded.
void Session::recordPictures(const std::vector<Orvel::Value>& values, FrameRecord& record) {
  const auto start = std::chrono::steady_clock::now();
  for (std::size_t i = 0; i < values.size(); ++i) {
    const GraphOutput& output = graph_.outputs[i];
    if (!record.values.contains(output.name)) continue;
    try {
      std::string picture = valuePicture(graph_.typeOfSlot(output.source), values[i]);
      if (!picture.empty()) record.pictures[output.name] = std::move(picture);
    } catch (const std::exception&) {
      noteFailure("Picturing output port " + inQuotes(output.name) + " failed: ");
    }
  }
  picturing_ = std::chrono::steady_clock::now() - start;
}

bool Session::isPictured() const {
  if (settings_.pictureFrames) return settings_.pictureFrames->placeOf(context_.frame).has_value();
  return description_.frameIndex + 1 == description_.frameCount;
}

void Session::noteRead(const std::filesystem::path& file) {
  const std::vector<std::filesystem::path>& known = settings_.filesRead;
  if (std::find(known.begin(), known.end(), file) != known.end()) return;
  if (filesRead_.insert(file).second) allFilesRead_.insert(fileIdentity(file));
}

void Session::noteFailure(const std::string& what) {
  const CaughtFailure caught = caughtFailure(logger_.currentEntry().frameText);
  logger_.addMessage(vtlcmdSource, levelError, what + caught.text);
  failure_ = std::max(failure_, caught.failure);
}

bool Session::hasMessageUpTo(LogLevel level) const {
  return std::any_of(logger_.messages.begin(), logger_.messages.end(),
                     [level](const LogMessage& message) {
                       return message.level >= levelCritical && message.level <= level;
                     });
}

}  // namespace vtlcmd::runner

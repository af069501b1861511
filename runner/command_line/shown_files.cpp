#include "command_line/shown_files.h"

#include <algorithm>
#include <new>
#include <utility>

#include "execution/message_distribution.h"
#include "graph/graph_file.h"
#include "platform/interrupt.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "values/exact_value.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* onlyFrame = "1";

RunDescription describeFrame(const VtlCmdLogger& logger, OutputForm form) {
  RunDescription description;
  description.frameCount = 1;
  description.frameText = onlyFrame;
  description.printLimit = logger.printLimit;
  description.throughAny = form == OutputForm::any ? 1 : 0;
  return description;
}

}  // namespace

ShownFiles::ShownFiles(const PlugIn::Translation& translation, VtlCmdLogger& logger, Form form)
    : translation_(translation),
      logger_(logger),
      form_(form),
      context_{&noTexts_, &noTexts_, 1, 0, 1, {}, {}, &logger},
      group_(logger, "show"),
      entry_(logger, describeFrame(logger, form.output)) {
  frame_.started = std::chrono::system_clock::now();
}

void ShownFiles::add(const std::string& file) {
  ShownFile& shown = files_.emplace_back();
  shown.file = file;
  const std::size_t messagesBefore = logger_.messages.size();
  try {
    for (const DataValue& data : file == standardInput ? readStandardInputArray(form_.array)
                                                       : readDataFile(filePath(file), form_.array))
      report(shown, data);
  } catch (const FrameAbandoned&) {
    allRead_ = false;
  } catch (const std::bad_alloc&) {
    note(levelError, file + ": there isn't enough memory for what is in it");
    allRead_ = false;
  } catch (const std::exception& error) {
    note(levelError, error.what());
    allRead_ = false;
  }
  for (std::size_t i = messagesBefore; i < logger_.messages.size(); ++i) {
    const LogMessage& message = logger_.messages[i];
    if (message.level <= levelWarning)
      shown.problems[message.source][message.level].push_back(message.text);
  }
}

void ShownFiles::report(ShownFile& shown, const DataValue& data) {
  const std::string name = data.name.empty() ? shown.file : shown.file + "/" + data.name;
  const std::string beginning = name + ": ";
  if (data.facts) note(levelProgress, beginning + describe(*data.facts));
  for (const std::string& warning : data.warnings) note(levelWarning, beginning + warning);
  if (!reportOutput(translation_, libraryText(name), data.value, form_.output, context_)) {
    allReported_ = false;
    return;
  }
  const ValueType type = parseValueType(data.value.getType().getFullyQualifiedName().c_str());
  if (form_.exactValues) frame_.values[name] = exactValue(type, data.value, 0);
  shown.values.push_back({name, type, data.facts});
}

FrameRecord ShownFiles::takeFrame() {
  logger_.setInputsSet(true);
  logger_.setExecuted(allRead_);
  logger_.setOutputsReported(allReported_);
  logger_.setWithoutErrors(
      std::none_of(logger_.messages.begin(), logger_.messages.end(),
                   [](const LogMessage& message) { return message.level <= levelError; }));
  logger_.setInterrupted(interruptSignal() != 0);
  frame_.failure = logger_.currentEntry().succeeded() ? Failure::none : Failure::permanent;
  distributeMessages(logger_);
  frame_.entry = logger_.currentEntry();
  frame_.frameText = frame_.entry.frameText;
  frame_.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin_).count();
  return std::move(frame_);
}

void ShownFiles::note(LogLevel level, const std::string& text) {
  logger_.addMessage(vtlcmdSource, level, text);
}

}  // namespace vtlcmd::runner

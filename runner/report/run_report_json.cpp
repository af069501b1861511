#include "report/run_report_json.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "report/message_distribution.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

Json messagesAsJson(const MessagesBySource& messages) {
  Json document = Json::object();
  for (const auto& [source, levels] : messages) {
    for (const auto& [level, texts] : levels)
      document[sourceName(source)][levelName(level)] = texts;
  }
  return document;
}

Json textsAsJson(const PortValueMap& texts, const std::vector<std::string>& portNames) {
  Json document = Json::object();
  for (const std::string& name : portNames) {
    if (const PortValueEntry* entry = texts.find(libraryText(name)))
      document[name] = standardText(entry->text);
  }
  return document;
}

Json propertiesAsJson(const decltype(RunDescription::properties)& properties) {
  Json document = Json::object();
  for (const auto& [key, value] : properties) document[key.c_str()] = value.c_str();
  return document;
}

Json outputsAsJson(const std::map<std::string, OutputReport>& outputs) {
  Json document = Json::object();
  for (const auto& [name, output] : outputs) {
    document[name] = {{"type", output.typeName}, {"shown", output.valueShown}};
    if (output.valueShown) document[name]["text"] = output.valueText;
  }
  return document;
}

Json entryAsJson(const ReportEntry& entry, const std::vector<std::string>& portNames) {
  return {{"graph", entry.graphName},
          {"graph_file", entry.graphFile},
          {"arguments", entry.arguments},
          {"frame", entry.frameText},
          {"frame_index", entry.frameIndex},
          {"frame_count", entry.frameCount},
          {"input_count", entry.inputCount},
          {"output_count", entry.outputCount},
          {"input_texts", textsAsJson(entry.inputValues, portNames)},
          {"job_texts", textsAsJson(entry.jobValues, portNames)},
          {"properties", propertiesAsJson(entry.properties)},
          {"print_limit", entry.printLimit},
          {"verbosity", levelName(static_cast<LogLevel>(entry.verbosity))},
          {"through", entry.throughAny != 0 ? "any" : "value"},
          {"scene_file", utf8Path(entry.sceneFile)},
          {"secondary_path", utf8Path(entry.secondaryPath)},
          {"inputs_set", entry.inputsSet},
          {"executed", entry.executed},
          {"outputs_reported", entry.outputsReported},
          {"without_errors", entry.withoutErrors},
          {"interrupted", entry.interrupted},
          {"succeeded", entry.succeeded()},
          {"outputs", outputsAsJson(entry.outputs)},
          {"messages", messagesAsJson(entry.messages)}};
}

Json groupAsJson(const ReportGroup& group, const std::vector<std::string>& portNames) {
  Json entries = Json::array();
  for (const ReportEntry& entry : group.entries) entries.push_back(entryAsJson(entry, portNames));
  return {{"name", group.name},
          {"loaded", group.loaded},
          {"finished", group.finished},
          {"messages", messagesAsJson(group.messages)},
          {"entries", std::move(entries)}};
}

}  // namespace

void writeJsonReport(std::ostream& stream, const VtlCmdLogger& logger,
                     const std::vector<std::string>& portNames) {
  Json groups = Json::array();
  for (const ReportGroup& group : logger.groups) groups.push_back(groupAsJson(group, portNames));
  const Json report{{"graph_errors", logger.errorCount},
                    {"graph_warnings", logger.warningCount},
                    {"groups", std::move(groups)}};
  stream << report.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace vtlcmd::runner

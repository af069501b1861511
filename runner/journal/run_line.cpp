#include "journal/run_line.h"

#include "journal/content_hash.h"
#include "journal/journal_lines.h"
#include "journal/process_identity.h"
#include "journal/sha256.h"
#include "journal/time_text.h"
#include "text/json.h"
#include "text/json_text.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/program_version.h"

namespace vtlcmd::runner {
namespace {

std::string hashOfText(std::string_view text) {
  Sha256 hash;
  hash.add(text);
  return hash.finish();
}

Json hashOfFile(const std::filesystem::path& file) {
  const std::optional<std::string> hash = contentHash(file);
  return hash ? Json(*hash) : Json(nullptr);
}

Json filesOf(const RunSettings& settings) {
  Json files = Json::object();
  for (const std::filesystem::path& file : settings.filesRead)
    files[fileText(file)] = hashOfFile(file);
  return files;
}

Json textsOf(const Graph& graph, const PortValueMap& texts) {
  Json document = Json::object();
  for (const GraphPort& port : graph.ports) {
    if (const PortValueEntry* entry = texts.find(libraryText(port.name)))
      document[port.name] = standardText(entry->text);
  }
  return document;
}

Json portsOf(const Graph& graph) {
  Json ports = Json::array();
  for (const GraphPort& port : graph.ports)
    ports.push_back({{"name", port.name}, {"type", nameOf(port.type)}, {"job", port.isJob}});
  return ports;
}

Json outputsOf(const Graph& graph) {
  Json outputs = Json::array();
  for (const GraphOutput& output : graph.outputs)
    outputs.push_back({{"name", output.name}, {"type", nameOf(graph.typeOfSlot(output.source))}});
  return outputs;
}

Json outputNamesOf(const Graph& graph) {
  Json names = Json::array();
  for (const GraphOutput& output : graph.outputs) names.push_back(output.name);
  return names;
}

Json elementsOf(const RunSettings& settings) {
  return settings.elements == allElements ? Json("all") : Json(settings.elements);
}

}  // namespace

std::string runContent(const Graph& graph, const RunSettings& settings,
                       const std::filesystem::path& plugIn, std::uint32_t printLimit) {
  const Json options{{"frames_per_second", settings.framesPerSecond},
                     {"scene_file", utf8Path(settings.sceneFile)},
                     {"secondary_path", utf8Path(settings.secondaryPath)},
                     {"print_limit", printLimit},
                     {"through", settings.outputForm == OutputForm::any ? "any" : "value"},
                     {"strict", settings.strict},
                     {"elements", elementsOf(settings)}};
  const Json key{{"graph", hashOfText(graph.text)},
                 {"plug_in", hashOfFile(plugIn)},
                 {"files", filesOf(settings)},
                 {"input_texts", textsOf(graph, settings.inputValues)},
                 {"job_texts", textsOf(graph, settings.jobValues)},
                 {"outputs", outputNamesOf(graph)},
                 {"settings", options}};
  Json content{{"form", journalForm},
               {"program", programVersion()},
               {"graph", graph.name},
               {"graph_file", fileText(settings.graphFile)},
               {"loaded", true},
               {"ports", portsOf(graph)},
               {"outputs", outputsOf(graph)},
               {"frames", settings.framesText},
               {"frame_count", settings.frames.size()}};
  if (!settings.jobFramesText.empty()) {
    content["job_frames"] = settings.jobFramesText;
    content["job_frame_count"] = settings.frames.wholeSize();
  }
  content["key"] = key;
  return jsonText(content);
}

std::string unloadedRunContent(const std::filesystem::path& graphFile) {
  return jsonText({{"form", journalForm},
                   {"program", programVersion()},
                   {"graph", fileText(graphFile)},
                   {"graph_file", fileText(graphFile)},
                   {"loaded", false},
                   {"frame_count", 0}});
}

std::string runTimes(const std::vector<std::string>& arguments, std::uint64_t attempt) {
  return jsonText({{"arguments", arguments},
                   {"host", hostName()},
                   {"process", processNumber()},
                   {"attempt", attempt},
                   {"started", timeText(std::chrono::system_clock::now())}});
}

}  // namespace vtlcmd::runner

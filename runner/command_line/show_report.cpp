#include "command_line/show_report.h"

#include <ostream>
#include <system_error>

#include "graph/graph.h"
#include "graph/graph_file.h"
#include "journal/journal_lines.h"
#include "journal/run_line.h"
#include "text/json_writer.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// The graph that gives the values: a node and an output for each.
Graph graphOf(std::span<const ShownFile> files) {
  Graph graph;
  graph.name = "show";
  for (const ShownFile& file : files) {
    for (const ShownFile::Value& value : file.values) {
      graph.outputs.push_back({value.name, "", graph.slotOfNode(graph.nodes.size())});
      graph.nodes.emplace_back().type = value.type;
    }
  }
  return graph;
}

RunSettings settingsOf(const ShowRecord& record) {
  RunSettings settings;
  for (const ShownFile& file : record.files) {
    if (file.file != standardInput) settings.filesRead.push_back(filePath(file.file));
  }
  settings.framesText = record.frame.frameText;
  settings.frames.append(1, 1, 1);
  settings.outputForm = record.form;
  return settings;
}

void writeFacts(JsonWriter& json, const NpyFacts& facts) {
  json.open('{');
  json.key("elements");
  json.text(facts.elements);
  json.key("shape");
  json.open('[');
  for (const std::uint64_t length : facts.shape) json.number(length);
  json.close(']');
  if (!facts.widenedTo.empty()) {
    json.key("widened_to");
    json.text(facts.widenedTo);
  }
  json.close('}');
}

void writeValue(JsonWriter& json, const ShownFile::Value& value, const FrameRecord& frame) {
  json.open('{');
  json.key("name");
  json.text(value.name);
  json.key("type");
  json.text(nameOf(value.type));
  if (value.facts) {
    json.key("in_file");
    writeFacts(json, *value.facts);
  }
  if (const auto output = frame.entry.outputs.find(value.name);
      output != frame.entry.outputs.end() && output->second.valueShown) {
    json.key("text");
    json.text(output->second.valueText);
  }
  json.key("value");
  json.raw(frame.values.at(value.name));
  json.close('}');
}

}  // namespace

void writeShowReports(const RunReports& reports, const ShowRecord& record) {
  if (reports.empty()) return;
  try {
    RunJournal journal(
        JournalFile::temporary(),
        runContent(graphOf(record.files), settingsOf(record), record.plugInFile, record.printLimit),
        runTimes(record.arguments));
    journal.startFrame(0, record.frame.frameText, record.frame.worker);
    journal.addFrame(frameContent(record.frame), frameTimes(record.frame));
    journal.end(record.end);
    reports.write({journal.file().lines(), "the journal"});
    journal.file().remove();
  } catch (const std::system_error& error) {
    throw OutputError("the report can't be made in the folder for temporary files", error);
  }
}

void writeShownFiles(std::ostream& stream, std::span<const ShownFile> files,
                     const FrameRecord& frame) {
  const char* separator = "\n";
  stream << "[";
  for (const ShownFile& file : files) {
    JsonWriter json;
    json.open('{');
    json.key("file");
    json.text(file.file);
    json.key("values");
    json.open('[');
    for (const ShownFile::Value& value : file.values) writeValue(json, value, frame);
    json.close(']');
    json.key("problems");
    json.raw(messagesContent(file.problems));
    json.close('}');
    stream << separator << json.json();
    separator = ",\n";
  }
  stream << "\n]\n";
}

}  // namespace vtlcmd::runner

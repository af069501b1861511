#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/default_text.h"
#include "command_line/port_kinds.h"
#include "graph/graph_file.h"
#include "text/control_characters.h"
#include "text/json.h"
#include "text/json_text.h"
#include "text/shell_quoting.h"

namespace vtlcmd::runner {
namespace {

struct PortRow {
  std::string kind;
  std::string name;
  std::string type;
  std::string description;
  /// Null for an output.
  const GraphPort* port = nullptr;
  const PortKind* portKind = nullptr;

  bool takesText() const { return portKind != nullptr && portKind->source == PortSource::text; }
};

std::vector<PortRow> portRows(const Graph& graph) {
  std::vector<PortRow> rows;
  for (const GraphPort& port : graph.ports) {
    rows.push_back({port.isJob ? "job" : "input", port.name, nameOf(port.type), port.description,
                    &port, &portKindOf(port.type)});
  }
  for (const GraphOutput& output : graph.outputs) {
    rows.push_back(
        {"output", output.name, nameOf(graph.typeOfSlot(output.source)), output.description});
  }
  return rows;
}

/// The default as a shell takes it behind `-s PORT=`, where a text can give it.
std::string defaultOf(const PortRow& row) {
  if (row.port == nullptr || !row.port->defaultValue) return "";
  if (const std::optional<std::string> text = defaultAsText(*row.port))
    return "default " + shellQuoted(*text) + "  ";
  return "default " + row.port->defaultText + (row.takesText() ? " (no text gives it)  " : "  ");
}

std::string padded(const std::string& text, std::size_t width) {
  return text + std::string(width - text.size() + 2, ' ');
}

void printTable(const std::vector<PortRow>& rows) {
  std::size_t nameWidth = 0;
  std::size_t typeWidth = 0;
  for (const PortRow& row : rows) {
    nameWidth = std::max(nameWidth, row.name.size());
    typeWidth = std::max(typeWidth, row.type.size());
  }
  for (const PortRow& row : rows) {
    std::string line =
        padded(row.kind, 6) + padded(row.name, nameWidth) + padded(row.type, typeWidth);
    line += defaultOf(row);
    if (row.portKind != nullptr && !row.takesText())
      line += "no text (" + std::string(row.portKind->instead) + ")  ";
    line += row.description;
    line.resize(line.find_last_not_of(' ') + 1);
    std::cout << withoutControls(line, "") << '\n';
  }
}

void printPortsJson(const Graph& graph) {
  Json ports = Json::array();
  for (const PortRow& row : portRows(graph)) {
    Json port{{"kind", row.kind}, {"name", row.name}, {"type", row.type}};
    if (row.port != nullptr && row.port->defaultValue) {
      port["default"] = parseJson(row.port->defaultText);
      const std::optional<std::string> text = defaultAsText(*row.port);
      port["default_text"] = text ? Json(*text) : nullptr;
    }
    if (row.portKind != nullptr) port["takes_text"] = row.takesText();
    if (!row.description.empty()) port["description"] = row.description;
    ports.push_back(std::move(port));
  }
  const Json document{{"graph", graph.name}, {"ports", std::move(ports)}};
  std::cout << jsonText(document, 2) << '\n';
}

}  // namespace

void addPortsCommand(CLI::App& app) {
  struct Options {
    std::string graph;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command = app.add_subcommand("ports", "List the ports of a graph");
  command->footer(R"(Examples:
  vtlcmd ports scatter.json
  vtlcmd ports scatter.json --json | jq '.ports[] | select(.takes_text).name'
)");
  command->add_option("GRAPH", options->graph, "Graph file; '-' is the standard input")
      ->required()
      ->type_name("");
  command->add_flag("--json", options->json, "Print a JSON document");
  command->callback([options] {
    const Graph graph = loadGraph(options->graph);
    options->json ? printPortsJson(graph) : printTable(portRows(graph));
  });
}

}  // namespace vtlcmd::runner

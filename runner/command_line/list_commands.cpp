#include <CLI/App.hpp>
#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/report_options.h"
#include "execution/plug_in.h"
#include "nodes/node_table.h"
#include "text/json.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

std::vector<std::string> supportedTypes(const std::string& plugInOption) {
  const PlugIn plugIn(plugInFileFrom(plugInOption));
  Orvel::Array<Orvel::String> names;
  plugIn.translation().getSupportedTypeNames(names);
  std::vector<std::string> texts;
  for (const Orvel::String& name : names) texts.emplace_back(name.c_str());
  return texts;
}

/// What a node declares besides its inputs, by NodeSetting.
const std::vector<std::string>& settingKeys(NodeSetting setting) {
  static const std::vector<std::string> keys[]{{}, {"type"}, {"type", "value"}};
  return keys[static_cast<std::size_t>(setting)];
}

void printNode(const NodeOperation& operation) {
  std::cout << operation.name << '\n' << "  " << operation.help << '\n';
  for (const Parameter& parameter : operation.parameters) {
    std::cout << "  in." << parameter.name << ": " << (parameter.isList ? "a list, each " : "")
              << parameter.accepts->words << '\n';
  }
  for (const std::string& key : settingKeys(operation.setting))
    std::cout << "  " << key << ": of the result\n";
}

Json nodeAsJson(const NodeOperation& operation) {
  Json inputs = Json::array();
  for (const Parameter& parameter : operation.parameters) {
    inputs.push_back({{"name", parameter.name},
                      {"takes", parameter.accepts->words},
                      {"list", parameter.isList}});
  }
  return {{"op", operation.name},
          {"help", operation.help},
          {"in", std::move(inputs)},
          {"keys", settingKeys(operation.setting)}};
}

}  // namespace

void addTypesCommand(CLI::App& app) {
  struct Options {
    std::string plugIn;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command = app.add_subcommand("types", "List the types that the plug-in handles");
  command->footer(R"(Examples:
  vtlcmd types
  vtlcmd types --plugin ./build/libVtlCmdTranslation.so --json
)");
  addPlugInOption(*command, options->plugIn);
  command->add_flag("--json", options->json, "Print a JSON document");
  command->callback([options] {
    const std::vector<std::string> types = supportedTypes(options->plugIn);
    if (options->json) {
      std::cout << jsonText(types, 2) << '\n';
    } else {
      for (const std::string& type : types) std::cout << type << '\n';
    }
  });
}

void addNodesCommand(CLI::App& app) {
  const auto json = std::make_shared<bool>(false);
  CLI::App* command = app.add_subcommand("nodes", "List the operations that nodes can have");
  command->footer(R"(Examples:
  vtlcmd nodes
  vtlcmd nodes --json | jq -r .[].op
)");
  command->add_flag("--json", *json, "Print a JSON document");
  command->callback([json] {
    Json document = Json::array();
    for (const std::span<const NodeOperation> family : nodeFamilies()) {
      for (const NodeOperation& operation : family) {
        if (*json) {
          document.push_back(nodeAsJson(operation));
        } else {
          printNode(operation);
        }
      }
    }
    if (*json) std::cout << jsonText(document, 2) << '\n';
  });
}

}  // namespace vtlcmd::runner

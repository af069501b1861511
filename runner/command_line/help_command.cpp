#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/help_formatter.h"
#include "command_line/usage_error.h"
#include "graph/graph_form.h"
#include "text/library_text.h"
#include "text/near_misses.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* helpFooter = R"(Examples:
  vtlcmd help run
  vtlcmd help graph
)";

/// Of the command itself, also while another command is being carried out.
std::string helpOf(const CLI::App& command, const std::string& before) {
  return command.get_formatter()->make_help(&command, before, CLI::AppFormatMode::Normal);
}

void printHelp(const CLI::App& app, const std::string& topic) {
  const std::string& program = app.get_name();
  if (topic.empty()) {
    std::cout << helpOf(app, program);
  } else if (topic == graphFormTopic) {
    std::cout << graphForm();
  } else {
    const std::vector<std::string> topics = helpTopics(app);
    if (std::find(topics.begin(), topics.end(), topic) == topics.end())
      throw UsageError("there is no help on " + inQuotes(topic) + nearMissHint(topic, topics));
    std::cout << helpOf(*app.get_subcommand(topic), program + " " + topic);
  }
}

}  // namespace

std::vector<std::string> helpTopics(const CLI::App& app) {
  std::vector<std::string> topics{graphFormTopic};
  for (const CLI::App* command : app.get_subcommands({})) topics.push_back(command->get_name());
  return topics;
}

void addHelpCommand(CLI::App& app) {
  const auto topic = std::make_shared<std::string>();
  CLI::App* command =
      app.add_subcommand("help", "Tell of a command, or of the form of graph files");
  command->add_option("TOPIC", *topic, "A command, or 'graph'; none for the program")
      ->type_name("");
  command->footer(helpFooter);
  command->callback([&app, topic] { printHelp(app, *topic); });
}

}  // namespace vtlcmd::runner

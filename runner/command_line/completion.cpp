#include "command_line/completion.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <optional>
#include <ostream>

#include "command_line/commands.h"
#include "command_line/port_kinds.h"
#include "graph/graph_file.h"
#include "text/control_characters.h"
#include "text/load_error.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {
namespace {

/// What is known where a word is to be completed.
struct Place {
  /// The word as far as it is typed.
  std::string word;
  /// What of it comes before the value: empty, or like "--report=".
  std::string before;
  /// The first word that is no option; empty when there is none yet.
  std::string graphFile;
  bool wantsJobs = false;
  const CLI::App& program;
  std::ostream& stream;
};

void offer(const Place& place, const std::string& value, const std::string& meaning) {
  const std::string word = place.before + value;
  // A line is a word and its meaning, whatever a graph's descriptions hold.
  if (word.starts_with(place.word))
    place.stream << word << '\t' << withoutControls(meaning, "") << '\n';
}

void offerFiles(const Place& place) { place.stream << '\t' << place.before << '\n'; }

/// One without ports and outputs when it can't be loaded.
Graph graphAt(const Place& place) {
  // The standard input isn't there to be completed.
  if (place.graphFile == standardInput) return {};
  try {
    return loadGraph(place.graphFile);
  } catch (const LoadError&) {
    return {};
  }
}

/// The name in what is typed of PORT=TEXT; nothing while it is being typed.
std::optional<std::string> portName(const Place& place) {
  const std::string typed = place.word.substr(place.before.size());
  const std::size_t equals = typed.find('=');
  if (equals == std::string::npos) return std::nullopt;
  return typed.substr(0, equals);
}

bool takesText(const GraphPort& port) { return portKindOf(port.type).source == PortSource::text; }

void offerPort(const Place& place, const GraphPort& port) {
  const std::string type = nameOf(port.type);
  offer(place, port.name + "=", port.description.empty() ? type : type + ", " + port.description);
}

void offerPortTexts(const Place& place) {
  const std::optional<std::string> name = portName(place);
  const Graph graph = graphAt(place);
  for (const GraphPort& port : graph.ports) {
    if (port.isJob != place.wantsJobs || !takesText(port)) continue;
    if (!name) {
      offerPort(place, port);
    } else if (port.name == *name && nameOf(port.type) == valueType<bool>().name) {
      offer(place, *name + "=true", "");
      offer(place, *name + "=false", "");
    }
  }
}

void offerPortFiles(Place place) {
  if (const std::optional<std::string> name = portName(place)) {
    place.before += *name + "=";
    return offerFiles(place);
  }
  const Graph graph = graphAt(place);
  for (const GraphPort& port : graph.ports) {
    if (takesText(port)) offerPort(place, port);
  }
}

void offerOutputs(const Place& place) {
  const Graph graph = graphAt(place);
  for (const GraphOutput& output : graph.outputs) offer(place, output.name, output.description);
}

/// Of what is typed of OUTPUT=FILE.
void offerOutputFiles(Place place) {
  if (const std::optional<std::string> name = portName(place)) {
    place.before += *name + "=";
    return offerFiles(place);
  }
  const Graph graph = graphAt(place);
  for (const GraphOutput& output : graph.outputs)
    offer(place, output.name + "=", output.description);
}

void offerLevels(const Place& place) {
  for (const char* name : VtlCmdLogger::levelNames) offer(place, name, "");
}

void offerTopics(const Place& place) {
  for (const std::string& topic : helpTopics(place.program)) offer(place, topic, "");
}

/// How a value is completed, by what the help calls it.
struct ValueKind {
  const char* name;
  void (*complete)(const Place&);
};

const ValueKind valueKinds[]{
    {"GRAPH", offerFiles},
    {"FILE", offerFiles},
    {"PATH", offerFiles},
    {"FOLDER", offerFiles},
    {"PORT=PATH", [](const Place& place) { offerPortFiles(place); }},
    {"LEVEL", offerLevels},
    {"PORT=TEXT", offerPortTexts},
    {"OUTPUT", offerOutputs},
    {"TOPIC", offerTopics},
    {"OUTPUT=FILE", [](const Place& place) { offerOutputFiles(place); }},
};

void completeValue(const CLI::Option& option, Place place) {
  place.wantsJobs = option.check_lname("set-job");
  const std::string kind = option.get_positional() ? option.get_name(true) : option.get_type_name();
  for (const ValueKind& row : valueKinds) {
    if (kind == row.name) return row.complete(place);
  }
  // Values to choose from stand in the kind's name, like "FORM:{value,any}".
  const std::size_t open = kind.find('{');
  if (open == std::string::npos) return;
  std::string choices = kind.substr(open + 1);
  choices.back() = ',';
  for (std::size_t end = 0; (end = choices.find(',')) != std::string::npos;) {
    offer(place, choices.substr(0, end), "");
    choices.erase(0, end + 1);
  }
}

bool takesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

const CLI::Option* optionNamed(const CLI::App& command, const std::string& word) {
  for (const CLI::Option* option : command.get_options()) {
    if (option->nonpositional() && option->check_name(word)) return option;
  }
  return nullptr;
}

void offerOptions(const CLI::App& command, const Place& place) {
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_lnames())
      offer(place, "--" + name, option->get_description());
  }
}

/// Takes in the words before the one to complete and gives the option whose value comes next.
const CLI::Option* readWords(const CLI::App& command, const std::vector<std::string>& words,
                             Place& place) {
  const CLI::Option* open = nullptr;
  for (std::size_t i = 1; i + 1 < words.size(); ++i) {
    if (open != nullptr) {
      open = nullptr;
    } else if (words[i].starts_with('-')) {
      const CLI::Option* option = optionNamed(command, words[i]);
      if (option != nullptr && takesValue(*option)) open = option;
    } else if (place.graphFile.empty()) {
      place.graphFile = words[i];
    }
  }
  return open;
}

void completeWord(const CLI::App& command, const CLI::Option* open, Place place) {
  if (open != nullptr) return completeValue(*open, place);
  const std::size_t equals = place.word.find('=');
  if (place.word.starts_with("--") && equals != std::string::npos) {
    place.before = place.word.substr(0, equals + 1);
    const CLI::Option* option = optionNamed(command, place.word.substr(0, equals));
    if (option != nullptr && takesValue(*option)) completeValue(*option, place);
    return;
  }
  if (place.word.starts_with('-')) return offerOptions(command, place);
  for (const CLI::Option* option : command.get_options()) {
    const bool isFull = !place.graphFile.empty() && option->get_items_expected_max() == 1;
    if (option->get_positional() && !isFull) completeValue(*option, place);
  }
}

}  // namespace

void printCompletions(const CLI::App& app, const std::vector<std::string>& words,
                      std::ostream& stream) {
  if (words.empty()) return;
  Place place{words.back(), "", "", false, app, stream};
  if (words.size() == 1 && place.word.starts_with('-')) return offerOptions(app, place);
  for (const CLI::App* command : app.get_subcommands({})) {
    if (words.size() == 1) {
      offer(place, command->get_name(), command->get_description());
    } else if (command->get_name() == words.front()) {
      const CLI::Option* open = readWords(*command, words, place);
      completeWord(*command, open, place);
    }
  }
}

}  // namespace vtlcmd::runner

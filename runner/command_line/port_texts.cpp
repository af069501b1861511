#include "command_line/port_texts.h"

#include <iostream>

#include "command_line/usage_error.h"
#include "readers/file_text.h"
#include "text/library_text.h"
#include "text/near_misses.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

std::pair<std::string, std::string> split(const std::string& assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string::npos)
    throw UsageError("expected PORT=TEXT, found " + inQuotes(assignment) + " without '='");
  return {assignment.substr(0, equals), assignment.substr(equals + 1)};
}

void removeLineEnd(std::string& text) {
  if (!text.ends_with('\n')) return;
  text.resize(text.size() - (text.ends_with("\r\n") ? 2 : 1));
}

}  // namespace

PortTexts::PortTexts(const Graph& graph) : graph_(graph) {
  for (const GraphPort& port : graph.ports) ports_.emplace(port.name, &port);
}

void PortTexts::setInput(const std::string& assignment) {
  const auto [name, text] = split(assignment);
  const GraphPort& port = findPort(name);
  if (port.isJob) throw UsageError(inQuotes(name) + " is a Job port: set it with -j");
  set(port, text);
}

void PortTexts::setJob(const std::string& assignment) {
  const auto [name, text] = split(assignment);
  const GraphPort& port = findPort(name);
  if (!port.isJob) throw UsageError(inQuotes(name) + " is an input port: set it with -s");
  set(port, text);
}

void PortTexts::setFromFile(const std::string& assignment) {
  const auto [name, path] = split(assignment);
  const GraphPort& port = findPort(name);
  std::optional<std::string> text = path == "-" ? readStream(std::cin) : readFile(filePath(path));
  if (!text) throw UsageError("the text for port " + inQuotes(name) + " can't be read: " + path);
  removeLineEnd(*text);
  set(port, *text);
}

const GraphPort& PortTexts::findPort(const std::string& name) const {
  const auto found = ports_.find(name);
  if (found != ports_.end()) return *found->second;
  std::vector<std::string> known;
  for (const GraphPort& port : graph_.ports) known.push_back(port.name);
  throw UsageError("the graph " + inQuotes(graph_.name) + " has no port " + inQuotes(name) +
                   nearMissHint(name, known));
}

void PortTexts::set(const GraphPort& port, const std::string& text) {
  PortValueMap& map = port.isJob ? jobs_ : inputs_;
  const Orvel::String libraryForm = libraryText(text);
  map.insert(libraryText(port.name), {libraryForm, libraryForm});
}

}  // namespace vtlcmd::runner

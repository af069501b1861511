#include "command_line/port_texts.h"

#include <system_error>

#include "command_line/port_kinds.h"
#include "command_line/usage_error.h"
#include "graph/graph_file.h"
#include "readers/file_text.h"
#include "text/library_text.h"
#include "text/near_misses.h"
#include "text/path_text.h"
#include "text/system_reason.h"
#include "text/text_place.h"

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

/// A text for a port whose value nobody would read from it.
void refuseText(const GraphPort& port) {
  const PortKind& kind = portKindOf(port.type);
  if (kind.source == PortSource::options)
    throw UsageError("port " + inQuotes(port.name) +
                     " takes no text: " + std::string(kind.instead));
}

/// The text in a file for a port.
std::string textIn(const std::string& port, const std::string& file) {
  const auto refuse = [&](const std::string& reason) {
    throw UsageError("the text for port " + inQuotes(port) + " can't be read: " + file + ": " +
                     reason);
  };
  std::string text;
  try {
    text = file == standardInput ? readStandardInput() : readFile(filePath(file));
  } catch (const std::system_error& error) {
    throwIfOutOfMemory(error);
    refuse(reasonOf(error));
  }
  const std::size_t nul = text.find('\0');
  if (nul != std::string::npos)
    refuse(lineAndColumn(text, nul) + ": a text can't hold a NUL character");
  return text;
}

}  // namespace

void refuseSharedInput(const std::string& graph, const std::vector<std::string>& assignments) {
  std::string reader = graph == standardInput ? "the graph" : "";
  for (const std::string& assignment : assignments) {
    const auto [name, path] = split(assignment);
    if (path != standardInput) continue;
    if (!reader.empty())
      throw UsageError("the standard input can't be both " + reader + " and the text for port " +
                       inQuotes(name));
    reader = "the text for port " + inQuotes(name);
  }
}

PortTexts::PortTexts(const Graph& graph) : graph_(graph) {
  for (const GraphPort& port : graph.ports) ports_.emplace(port.name, &port);
}

void PortTexts::setInput(const std::string& assignment) {
  const auto [name, text] = split(assignment);
  const GraphPort& port = findPort(name);
  if (port.isJob) throw UsageError(inQuotes(name) + " is a Job port: set it with -j");
  refuseText(port);
  set(port, text);
}

void PortTexts::setJob(const std::string& assignment) {
  const auto [name, text] = split(assignment);
  const GraphPort& port = findPort(name);
  if (!port.isJob) throw UsageError(inQuotes(name) + " is an input port: set it with -s");
  refuseText(port);
  set(port, text);
}

void PortTexts::setFromFile(const std::string& assignment) {
  const auto [name, path] = split(assignment);
  const GraphPort& port = findPort(name);
  refuseText(port);
  std::string text = textIn(name, path);
  removeLineEnd(text);
  set(port, text);
  if (path != standardInput) files_.push_back(filePath(path));
}

const GraphPort& PortTexts::findPort(const std::string& name) const {
  const auto found = ports_.find(name);
  if (found != ports_.end()) return *found->second;
  std::vector<std::string> known;
  for (const GraphPort& port : graph_.ports) known.push_back(port.name);
  throw UsageError("the graph " + inQuotes(graph_.name) + " has no port " + inQuotes(name) +
                   nearMissHint(name, known));
}

TextsByPort PortTexts::byPort() const {
  TextsByPort texts;
  for (const GraphPort& port : graph_.ports) {
    const PortValueEntry* entry = (port.isJob ? jobs_ : inputs_).find(libraryText(port.name));
    texts.push_back(entry == nullptr ? std::nullopt
                                     : std::optional<std::string>(standardText(entry->text)));
  }
  return texts;
}

void PortTexts::set(const GraphPort& port, const std::string& text) {
  PortValueMap& map = port.isJob ? jobs_ : inputs_;
  const Orvel::String libraryForm = libraryText(text);
  map.insert(libraryText(port.name), {libraryForm, libraryForm});
}

}  // namespace vtlcmd::runner

#include "manual/manual_page.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <cctype>
#include <sstream>

#include "graph/graph_form.h"

namespace vtlcmd::runner {
namespace {

/// A text with everything escaped that the page language would take for its own.
std::string escaped(const std::string& text) {
  std::string result;
  for (const char character : text) {
    const bool startsLine = result.empty() || result.back() == '\n';
    if (startsLine && (character == '.' || character == '\'')) result += "\\&";
    switch (character) {
      case '\\':
        result += "\\e";
        break;
      case '-':
        result += "\\-";
        break;
      case '\'':
        result += "\\(aq";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string bold(const std::string& text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(const std::string& text) { return "\\fI" + escaped(text) + "\\fR"; }

std::string upperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return text;
}

void writeHead(std::ostream& page, const std::string& name, const std::string& section,
               const std::string& version, const std::string& chapter, const std::string& summary) {
  page << ".TH " << upperCase(escaped(name)) << ' ' << section << R"( "" ")" << escaped(version)
       << "\" \"" << chapter << "\"\n.SH NAME\n"
       << escaped(name) << " \\- " << escaped(summary) << '\n';
}

void writeOption(std::ostream& page, const CLI::Option& option) {
  page << ".TP\n";
  const char* separator = "";
  for (const std::string& name : option.get_snames()) {
    page << separator << bold("-" + name);
    separator = ", ";
  }
  for (const std::string& name : option.get_lnames()) {
    page << separator << bold("--" + name);
    separator = ", ";
  }
  if (option.get_items_expected_max() > 0) page << ' ' << italic(option.get_type_name());
  page << '\n' << escaped(option.get_description()) << ".\n";
  if (!option.get_default_str().empty())
    page << "Default: " << escaped(option.get_default_str()) << ".\n";
}

void writeSynopsis(std::ostream& page, const CLI::App& program, const CLI::App& command) {
  page << ".SH SYNOPSIS\n" << bold(program.get_name());
  if (&program == &command) {
    page << ' ' << italic("COMMAND") << " [" << italic("OPTION") << "]...\n";
    return;
  }
  page << ' ' << bold(command.get_name()) << " [" << italic("OPTION") << "]...";
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) continue;
    page << ' ' << italic(option->get_name(true))
         << (option->get_items_expected_max() > 1 ? "..." : "");
  }
  page << '\n';
}

void writeArguments(std::ostream& page, const CLI::App& command) {
  const char* heading = ".SH ARGUMENTS\n";
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) continue;
    page << heading << ".TP\n"
         << italic(option->get_name(true)) << '\n'
         << escaped(option->get_description()) << ".\n";
    heading = "";
  }
}

void writeCommands(std::ostream& page, const CLI::App& program) {
  page << ".SH COMMANDS\n";
  for (const CLI::App* command : program.get_subcommands({}))
    page << ".TP\n"
         << bold(command->get_name()) << '\n'
         << escaped(command->get_description()) << ".\n";
}

/// A text of help where headings end in a colon and lines stand as they are.
void writeText(std::ostream& page, const std::string& text) {
  std::istringstream lines(text);
  const char* endOfSection = "";
  for (std::string line; std::getline(lines, line);) {
    const bool isHeading = !line.empty() && line[0] != ' ' && line.back() == ':';
    if (isHeading) {
      line.pop_back();
      page << endOfSection << ".SH " << upperCase(escaped(line)) << "\n.nf\n";
      endOfSection = ".fi\n";
    } else {
      page << escaped(line) << '\n';
    }
  }
  page << endOfSection;
}

void writeSeeAlso(std::ostream& page, const CLI::App& program, const CLI::App& command) {
  page << ".SH SEE ALSO\n";
  const char* separator = "";
  const auto name = [&](const CLI::App& other) {
    if (&other == &command) return;
    page << separator << bold(manualPageName(program, other)) << "(1)";
    separator = ",\n";
  };
  name(program);
  for (const CLI::App* other : program.get_subcommands({})) name(*other);
  page << separator << bold("vtlcmd-graph") << "(5)\n";
}

}  // namespace

std::string manualPageName(const CLI::App& program, const CLI::App& command) {
  return &program == &command ? program.get_name() : program.get_name() + "-" + command.get_name();
}

std::string manualPage(const CLI::App& program, const CLI::App& command,
                       const std::string& version) {
  std::ostringstream page;
  const std::string name = manualPageName(program, command);
  writeHead(page, name, "1", version, "User commands", command.get_description());
  writeSynopsis(page, program, command);
  if (&program == &command) writeCommands(page, program);
  writeArguments(page, command);
  page << ".SH OPTIONS\n";
  for (const CLI::Option* option : command.get_options()) {
    if (option->nonpositional()) writeOption(page, *option);
  }
  writeText(page, command.get_footer());
  writeSeeAlso(page, program, command);
  return page.str();
}

std::string graphManualPage(const CLI::App& program, const std::string& version) {
  std::ostringstream page;
  writeHead(page, "vtlcmd-graph", "5", version, "File formats", graphFormSummary);
  writeText(page, graphForm());
  page << ".SH SEE ALSO\n" << bold(program.get_name()) << "(1)";
  for (const char* command : {"run", "ports", "nodes"})
    page << ",\n" << bold(program.get_name() + "-" + command) << "(1)";
  page << '\n';
  return page.str();
}

}  // namespace vtlcmd::runner

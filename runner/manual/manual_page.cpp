#include "manual/manual_page.h"

#include <algorithm>
#include <cctype>
#include <sstream>

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

void writeCommands(std::ostream& page, const CLI::App& program) {
  page << ".SH COMMANDS\n";
  for (const CLI::App* command : program.get_subcommands({}))
    page << ".TP\n"
         << bold(command->get_name()) << '\n'
         << escaped(command->get_description()) << ".\n";
}

/// The help's last part, where headings end in a colon and lines stand as they are.
void writeFooter(std::ostream& page, const std::string& footer) {
  std::istringstream lines(footer);
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
  page << '\n';
}

}  // namespace

std::string manualPageName(const CLI::App& program, const CLI::App& command) {
  return &program == &command ? program.get_name() : program.get_name() + "-" + command.get_name();
}

std::string manualPage(const CLI::App& program, const CLI::App& command,
                       const std::string& version) {
  std::ostringstream page;
  const std::string name = manualPageName(program, command);
  page << ".TH " << upperCase(escaped(name)) << R"( 1 "" ")" << escaped(version)
       << R"(" "User commands")"
       << "\n.SH NAME\n"
       << escaped(name) << " \\- " << escaped(command.get_description()) << '\n';
  writeSynopsis(page, program, command);
  if (&program == &command) writeCommands(page, program);
  page << ".SH OPTIONS\n";
  for (const CLI::Option* option : command.get_options()) {
    if (option->nonpositional()) writeOption(page, *option);
  }
  writeFooter(page, command.get_footer());
  writeSeeAlso(page, program, command);
  return page.str();
}

}  // namespace vtlcmd::runner

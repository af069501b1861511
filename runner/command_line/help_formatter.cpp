#include "command_line/help_formatter.h"

#include <CLI/App.hpp>
#include <sstream>

namespace vtlcmd::runner {
namespace {

/// Where descriptions begin.
constexpr std::size_t column = 30;

/// A name, and beside or below it what it means.
std::string entry(const std::string& name, const std::string& description) {
  const std::string margin(column, ' ');
  std::string text = "  " + name;
  std::size_t used = helpWidth;
  if (text.size() + 2 <= column) {
    text.resize(column, ' ');
    used = column;
  }
  std::istringstream words(description);
  for (std::string word; words >> word;) {
    if (used + 1 + word.size() > helpWidth) {
      text += "\n" + margin;
      used = column;
    }
    if (used > column) {
      text += ' ';
      ++used;
    }
    text += word;
    used += word.size();
  }
  return text + "\n";
}

}  // namespace

std::string HelpFormatter::make_option(const CLI::Option* option, bool isPositional) const {
  return entry(make_option_name(option, isPositional) + make_option_opts(option),
               make_option_desc(option));
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  if (option->get_type_size() == 0) return "";
  std::string text;
  if (!option->get_type_name().empty()) text += " " + option->get_type_name();
  if (!option->get_default_str().empty()) text += "=" + option->get_default_str();
  if (option->get_expected_max() == CLI::detail::expected_max_vector_size) text += " ...";
  return text;
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  return entry(command->get_name(), command->get_description());
}

}  // namespace vtlcmd::runner

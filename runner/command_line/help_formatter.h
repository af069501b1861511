#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>

namespace vtlcmd::runner {

/// Columns that help fits into.
inline constexpr std::size_t helpWidth = 80;

/// Help as the parser's library lays it out, with descriptions wrapped at the width.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_option(const CLI::Option* option, bool isPositional) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_subcommand(const CLI::App* command) const override;
};

}  // namespace vtlcmd::runner

#include <CLI/App.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "command_line/commands.h"
#include "manual/manual_page.h"

namespace {

void writePages(const std::filesystem::path& folder, const std::string& version) {
  CLI::App program;
  vtlcmd::runner::CommandState state;
  vtlcmd::runner::addCommands(program, state);
  const std::string foot = program.get_name() + " " + version;
  const auto writeFile = [&](const std::string& name, const std::string& text) {
    std::ofstream page;
    page.exceptions(std::ios::failbit | std::ios::badbit);
    page.open(folder / name);
    page << text;
    page.close();
  };
  const auto write = [&](const CLI::App& command) {
    writeFile("man1/" + vtlcmd::runner::manualPageName(program, command) + ".1",
              vtlcmd::runner::manualPage(program, command, foot));
  };
  write(program);
  for (const CLI::App* command : program.get_subcommands({})) write(*command);
  writeFile("man5/vtlcmd-graph.5", vtlcmd::runner::graphManualPage(program, foot));
}

}  // namespace

/// Run by the build: the folder that has one for each section of pages, and the version at their
/// foot.
int main(int count, char** words) {
  if (count != 3) return 2;
  try {
    writePages(words[1], words[2]);
  } catch (const std::exception& error) {
    std::cerr << "write_manual: " << error.what() << '\n';
    return 1;
  }
  return 0;
}

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
  const auto write = [&](const CLI::App& command) {
    const std::string name = vtlcmd::runner::manualPageName(program, command) + ".1";
    std::ofstream page;
    page.exceptions(std::ios::failbit | std::ios::badbit);
    page.open(folder / name);
    page << vtlcmd::runner::manualPage(program, command, program.get_name() + " " + version);
    page.close();
  };
  write(program);
  for (const CLI::App* command : program.get_subcommands({})) write(*command);
}

}  // namespace

/// Run by the build: the folder for the pages, and the version at their foot.
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

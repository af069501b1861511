#pragma once

#include <string>
#include <vector>

#include "execution/exit_code.h"

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// What the subcommands share: the words of the command line, and where each leaves its result.
struct CommandState {
  std::vector<std::string> arguments;
  ExitCode exitCode = ExitCode::success;
};

/// Makes `app` the program's command line. App and state must outlive the parse.
void addCommands(CLI::App& app, CommandState& state);

// Each adds a subcommand whose callback does the work. App and state must outlive the parse.
void addRunCommand(CLI::App& app, CommandState& state);
void addReportCommand(CLI::App& app, CommandState& state);
void addDiffCommand(CLI::App& app, CommandState& state);
void addSubmitCommand(CLI::App& app, CommandState& state);
void addResubmitCommand(CLI::App& app, CommandState& state);
void addStatusCommand(CLI::App& app);
void addPortsCommand(CLI::App& app);
void addTypesCommand(CLI::App& app);
void addNodesCommand(CLI::App& app);
void addShowCommand(CLI::App& app, CommandState& state);
void addHelpCommand(CLI::App& app);

/// What `help` can tell of, in no order.
std::vector<std::string> helpTopics(const CLI::App& app);

}  // namespace vtlcmd::runner

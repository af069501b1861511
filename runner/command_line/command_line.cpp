#include "command_line/command_line.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/completion.h"
#include "command_line/help_formatter.h"
#include "command_line/usage_error.h"
#include "command_line/version_text.h"
#include "command_line/worker_command.h"
#include "readers/foreign_file.h"
#include "text/control_characters.h"
#include "text/library_text.h"
#include "text/load_error.h"
#include "text/near_misses.h"
#include "workers/worker_process.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* programFooter = R"(Examples:
  vtlcmd ports examples/scatter.json
  vtlcmd run examples/scatter.json -s count=1000 -s offset=10,0,-5 -j seed=7
  vtlcmd show scan.ply temperatures.npy

Exit codes:
  0    all well
  1    the run failed: a port got no value, or there was an error
  2    the command line is wrong
  3    the graph, the plug-in or a journal can't be loaded; nothing was run
  75   the run failed for want of memory or room; another attempt may not
  141  nobody reads the standard output any more
  128 + number of the signal that interrupted: 129, 130 or 143

Environment:
  VTLCMD_WORKERS               what --workers is when it isn't given
  NO_COLOR                     when set and not empty, --color auto means never
  QUILLON_DUMP_VERSION_INFO    when 1, the plug-in says at load who it is
)";

void refuseMissingOrUnknownCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError("a command is missing");
  if (arguments[0].starts_with('-')) return;
  std::vector<std::string> known;
  for (const CLI::App* command : app.get_subcommands({})) known.push_back(command->get_name());
  if (std::find(known.begin(), known.end(), arguments[0]) != known.end()) return;
  throw UsageError(inQuotes(arguments[0]) + " is no command" + nearMissHint(arguments[0], known));
}

/// Says what is wrong with the first word that a command didn't expect.
std::string surplusText(const CLI::App& app) {
  const std::vector<std::string> words = app.remaining(true);
  const std::string word = words.empty() ? std::string() : words.front();
  if (!word.starts_with('-')) return "the word " + inQuotes(word) + " isn't expected here";
  const std::string option = word.substr(0, word.find('='));
  std::vector<std::string> known;
  const std::vector<CLI::App*> commands = app.get_subcommands();
  const CLI::App& command = commands.empty() ? app : *commands.front();
  for (const CLI::Option* candidate : command.get_options()) {
    for (const std::string& name : candidate->get_lnames()) known.push_back("--" + name);
  }
  return "there is no option " + inQuotes(option) + nearMissHint(option, known);
}

ExitCode refuse(const CLI::App& app, const std::string& text) {
  const std::vector<CLI::App*> commands = app.get_subcommands();
  const std::string command = commands.empty() ? "" : " " + commands.front()->get_name();
  std::cerr << "vtlcmd: " << withoutControls(text) << "\nTry 'vtlcmd" << command << " --help'.\n";
  return ExitCode::usage;
}

}  // namespace

void addCommands(CLI::App& app, CommandState& state) {
  app.description("Runs compute graphs and reports their outputs.");
  app.name("vtlcmd");
  app.formatter(std::make_shared<HelpFormatter>());
  app.footer(programFooter);
  // Options look alike on every platform, and a path may begin with a slash.
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  app.set_version_flag("--version", versionText());
  addRunCommand(app, state);
  addReportCommand(app, state);
  addDiffCommand(app, state);
  addSubmitCommand(app, state);
  addResubmitCommand(app, state);
  addStatusCommand(app);
  addPortsCommand(app);
  addTypesCommand(app);
  addNodesCommand(app);
  addShowCommand(app, state);
  addHelpCommand(app);
}

ExitCode runCommandLine(const std::vector<std::string>& arguments) {
  CommandState state{arguments};
  CLI::App app;
  addCommands(app, state);
  // Called by the shells' completion scripts; the words behind it are anything but a command line.
  if (!arguments.empty() && arguments[0] == "complete") {
    printCompletions(app, {arguments.begin() + 1, arguments.end()}, std::cout);
    return ExitCode::success;
  }
  if (!arguments.empty() && arguments[0] == readerCommand) {
    serveForeignFile({arguments.begin() + 1, arguments.end()});
    return ExitCode::success;
  }
  if (!arguments.empty() && arguments[0] == workerCommand) serveFrames();
  try {
    refuseMissingOrUnknownCommand(app, arguments);
    // The parser takes its words from the back.
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ExtrasError&) {
    return refuse(app, surplusText(app));
  } catch (const CLI::RequiredError& error) {
    return refuse(app, app.remaining(true).empty() ? error.what() : surplusText(app));
  } catch (const CLI::ParseError& error) {
    // Help and the version come this way too, with an exit code of zero.
    if (error.get_exit_code() == 0) {
      app.exit(error, std::cout, std::cerr);
      return ExitCode::success;
    }
    return refuse(app, error.what());
  } catch (const UsageError& error) {
    return refuse(app, error.what());
  } catch (const LoadError& error) {
    std::cerr << "vtlcmd: " << withoutControls(error.what()) << '\n';
    return ExitCode::notLoaded;
  }
  return state.exitCode;
}

}  // namespace vtlcmd::runner

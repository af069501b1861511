#include <CLI/App.hpp>
#include <iostream>
#include <memory>
#include <optional>

#include "command_line/commands.h"
#include "command_line/graph_run.h"
#include "text/control_characters.h"
#include "text/load_error.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* runFooter = R"(Examples:
  vtlcmd run scatter.json -s count=1000 -s offset=10,0,-5 -j seed=7
  vtlcmd run animated.json -f 1-48 --fps 24 --report run.html
  vtlcmd run scatter.json -q --report - | jq .frames[0].outputs
  echo 12 | vtlcmd run scatter.json --set-file count=-

Texts of ports are handed on as they stand: numbers like 12 or 1.5e3, true and
false, vectors like 1,2.5,3, strings without quotes.
)";

ExitCode run(const RunOptions& options, const std::vector<std::string>& arguments) {
  options.read.apply();
  RunReports reports(options.reports, !options.noTimes);
  std::optional<LoadedRun> loaded;
  try {
    loaded = loadRun(options, arguments);
  } catch (const LoadError& error) {
    std::cerr << "vtlcmd: " << withoutControls(error.what()) << '\n';
    try {
      refuseTargets(options, {});
      reportLoadFailure(options.graph, arguments, reports, error.what());
    } catch (const std::exception& ofReport) {
      std::cerr << "vtlcmd: " << withoutControls(ofReport.what()) << '\n';
    }
    return ExitCode::notLoaded;
  }
  return runGraph(*loaded, options, reports);
}

}  // namespace

void addRunCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<RunOptions>();
  CLI::App* command = app.add_subcommand("run", "Run a graph and report its outputs");
  command->footer(runFooter);
  addRunOptions(*command, *options);
  command->callback([options, &state] { state.exitCode = run(*options, state.arguments); });
}

}  // namespace vtlcmd::runner

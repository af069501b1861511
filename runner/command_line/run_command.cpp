#include <iostream>
#include <memory>
#include <optional>

#include "command_line/commands.h"
#include "command_line/option_values.h"
#include "command_line/output_targets.h"
#include "command_line/port_kinds.h"
#include "command_line/port_texts.h"
#include "command_line/read_options.h"
#include "command_line/report_options.h"
#include "command_line/run_reports.h"
#include "command_line/terminal.h"
#include "execution/interrupt.h"
#include "execution/progress.h"
#include "execution/session.h"
#include "graph/graph_file.h"
#include "graph/path_sources.h"
#include "text/control_characters.h"
#include "text/load_error.h"
#include "text/path_text.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* footer = R"(Examples:
  vtlcmd run scatter.json -s count=1000 -s offset=10,0,-5 -j seed=7
  vtlcmd run animated.json -f 1-48 --fps 24 --report run.html
  vtlcmd run scatter.json -q --report - | jq .groups[0].entries[0].outputs
  echo 12 | vtlcmd run scatter.json --set-file count=-

Texts of ports are handed on as they stand: numbers like 12 or 1.5e3, true and
false, vectors like 1,2.5,3, strings without quotes.
)";

struct RunOptions {
  std::string graph;
  std::vector<std::string> inputs;
  std::vector<std::string> jobs;
  std::vector<std::string> files;
  std::string frames = "1";
  std::string framesPerSecond = "24";
  std::string scene;
  std::string secondary;
  bool strict = false;
  std::vector<std::string> reports;
  /// Nothing: on a terminal.
  std::optional<bool> progress;
  ReadOptions read;
  ReportOptions report;
};

void addOptions(CLI::App& command, RunOptions& options) {
  const auto addList = [&](const char* name, std::vector<std::string>& list, const char* help) {
    return command.add_option(name, list, help)->allow_extra_args(false);
  };
  command.add_option("GRAPH", options.graph, "Graph file; '-' is the standard input")
      ->required()
      ->type_name("");
  addList("-s,--set", options.inputs, "Text for an input port, handed on as it stands")
      ->type_name("PORT=TEXT");
  addList("-j,--set-job", options.jobs, "Text for a Job port")->type_name("PORT=TEXT");
  addList("--set-file", options.files,
          "Text for a port from a file, without its last line end; '-' is the standard input")
      ->type_name("PORT=PATH");
  command
      .add_option("-f,--frames", options.frames,
                  "Frames to run: 1 or 1-10 or 1-10x2 (or 1-10:2) or 1,5,9; fractions are fine")
      ->type_name("FRAMES")
      ->capture_default_str();
  command
      .add_option("--fps", options.framesPerSecond,
                  "Frames a second, like 24 or 24000/1001; a frame's time is its number times the "
                  "length of a frame")
      ->type_name("NUMBER")
      ->capture_default_str();
  command
      .add_option(
          "--scene", options.scene,
          "Scene file that the graph is told; on every platform //shots/scene.vs is a server "
          "and its share, without a file name")
      ->type_name("PATH");
  command.add_option("--secondary", options.secondary, "Secondary path that the graph is told")
      ->type_name("PATH");
  command.add_flag("--strict", options.strict, "Fail on a warning too");
  addList("--report", options.reports,
          "Write a report of the run: a page for people to a file named *.html, else a JSON "
          "document; '-' is the standard output, and the text then goes to standard error")
      ->type_name("FILE");
  CLI::Option* progress = command.add_flag_callback(
      "--progress", [&options] { options.progress = true; },
      "Tell on standard error how far the run is, even off a terminal");
  command
      .add_flag_callback(
          "--no-progress", [&options] { options.progress = false; },
          "Never tell how far the run is")
      ->excludes(progress);
  options.read.addTo(command);
  options.report.addTo(command);
}

PortTexts textsFrom(const RunOptions& options, const Graph& graph) {
  PortTexts texts(graph);
  for (const std::string& assignment : options.files) texts.setFromFile(assignment);
  for (const std::string& assignment : options.inputs) texts.setInput(assignment);
  for (const std::string& assignment : options.jobs) texts.setJob(assignment);
  return texts;
}

RunSettings settingsFrom(const RunOptions& options, const PortTexts& texts,
                         std::vector<std::string> arguments) {
  RunSettings settings;
  settings.graphFile = filePath(options.graph);
  settings.arguments = std::move(arguments);
  settings.inputValues = texts.inputs();
  settings.jobValues = texts.jobs();
  settings.frames = parseFrames(options.frames);
  settings.framesPerSecond = parseFramesPerSecond(options.framesPerSecond);
  settings.sceneFile = parsePath("--scene", options.scene);
  settings.secondaryPath = parsePath("--secondary", options.secondary);
  settings.verbosity = options.report.verbosity();
  settings.outputForm = options.report.outputForm();
  settings.strict = options.strict;
  return settings;
}

ExitCode exitCodeOf(RunOutcome outcome) {
  switch (outcome) {
    case RunOutcome::succeeded:
      return ExitCode::success;
    case RunOutcome::failed:
      return ExitCode::runFailed;
    case RunOutcome::interrupted:
      break;
  }
  return ExitCode::interrupted;
}

/// Closes a run with what the graph system complained of: "2 errors, 1 warning".
void printCounts(const VtlCmdLogger& logger) {
  const char* separator = "";
  const auto print = [&](std::uint64_t count, const char* noun) {
    if (count == 0) return;
    std::cerr << separator << count << ' ' << noun << (count == 1 ? "" : "s");
    separator = ", ";
  };
  print(logger.errorCount, "error");
  print(logger.warningCount, "warning");
  if (*separator != '\0') std::cerr << '\n';
}

ExitCode runGraph(const Graph& graph, const RunSettings& settings, const RunOptions& options,
                  bool documentOnOutput, VtlCmdLogger& logger) {
  const PlugIn plugIn(options.report.plugInFile());
  rememberInterrupt();
  Progress progress(std::cerr, progressForm(options.progress), settings.frames.size());
  MessagePrinter printer(
      logger, static_cast<std::int16_t>(settings.verbosity),
      options.report.sinks(documentOnOutput ? standardErrors() : standardOutput()), progress);
  Session session(graph, plugIn.translation(), settings, logger);
  const RunOutcome outcome = session.run(
      [&](std::size_t frame) { progress.beginFrame(frame, shortestText(settings.frames[frame])); },
      [&] { printer.printNew(); });
  if (settings.verbosity >= levelVerbose) printCounts(logger);
  return exitCodeOf(outcome);
}

/// Whatever a run writes must leave what it reads as it is.
void refuseTargets(const RunOptions& options, std::vector<std::filesystem::path> filesRead) {
  filesRead.push_back(filePath(options.graph));
  filesRead.push_back(options.report.plugInFile());
  OutputTargets targets(std::move(filesRead));
  for (const std::string& report : options.reports) targets.add("--report", report);
}

/// What the run will complain of in every frame is told once, with a way out.
void tellUnsettablePorts(const Graph& graph, const TextsByPort& texts) {
  const std::vector<std::string> lines = unsettablePorts(graph, texts);
  for (const std::string& line : lines) std::cerr << "vtlcmd: " << line << '\n';
}

/// A run that never began, for the JSON report.
void recordLoadFailure(VtlCmdLogger& logger, const std::string& graphFile, const LoadError& error) {
  const GroupScope group(logger, graphFile);
  logger.addMessage(vtlcmdSource, levelCritical, error.what());
}

ExitCode run(const RunOptions& options, const std::vector<std::string>& arguments) {
  options.read.apply();
  VtlCmdLogger logger(options.report.printLimit());
  RunReports reports(options.reports);
  std::vector<std::string> portNames;
  try {
    refuseSharedInput(options.graph, options.files);
    Graph graph = loadGraph(options.graph);
    for (const GraphPort& port : graph.ports) portNames.push_back(port.name);
    const PortTexts texts = textsFrom(options, graph);
    const TextsByPort textsByPort = texts.byPort();
    lookUpTextsInWorkingDirectory(graph, textsByPort);
    const RunSettings settings = settingsFrom(options, texts, arguments);
    std::vector<std::filesystem::path> filesRead = filesReadBy(graph, textsByPort);
    filesRead.insert(filesRead.end(), texts.files().begin(), texts.files().end());
    refuseTargets(options, std::move(filesRead));
    reports.open();
    if (settings.verbosity >= levelWarning) tellUnsettablePorts(graph, textsByPort);
    const ExitCode code = runGraph(graph, settings, options, reports.useStandardOutput(), logger);
    reports.write(logger, portNames);
    return code;
  } catch (const LoadError& error) {
    recordLoadFailure(logger, options.graph, error);
    try {
      refuseTargets(options, {});
      reports.open();
      reports.write(logger, portNames);
    } catch (const std::exception& ofReport) {
      std::cerr << "vtlcmd: " << withoutControls(ofReport.what()) << '\n';
    }
    throw;
  }
}

}  // namespace

void addRunCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<RunOptions>();
  CLI::App* command = app.add_subcommand("run", "Run a graph and report its outputs");
  command->footer(footer);
  addOptions(*command, *options);
  command->callback([options, &state] { state.exitCode = run(*options, state.arguments); });
}

}  // namespace vtlcmd::runner

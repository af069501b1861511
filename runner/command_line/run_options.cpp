#include "command_line/run_options.h"

#include <CLI/App.hpp>
#include <set>

#include "command_line/job_frames.h"
#include "command_line/option_values.h"
#include "command_line/port_texts.h"
#include "command_line/save_options.h"
#include "command_line/usage_error.h"
#include "graph/needed_nodes.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

namespace {

CLI::Option* addList(CLI::App& command, const char* name, std::vector<std::string>& list,
                     const char* help) {
  return command.add_option(name, list, help)->allow_extra_args(false);
}

void addGraphAndTexts(CLI::App& command, RunOptions& options) {
  command.add_option("GRAPH", options.graph, "Graph file; '-' is the standard input")
      ->required()
      ->type_name("");
  addList(command, "-s,--set", options.inputs, "Text for an input port, handed on as it stands")
      ->type_name("PORT=TEXT");
  addList(command, "-j,--set-job", options.jobs, "Text for a Job port")->type_name("PORT=TEXT");
  addList(command, "--set-file", options.files,
          "Text for a port from a file, without its last line end; '-' is the standard input")
      ->type_name("PORT=PATH");
}

void addFramesAndScene(CLI::App& command, RunOptions& options) {
  command
      .add_option("-f,--frames", options.frames,
                  "Frames to run: 1 or 1-10 or 1-10x2 (or 1-10:2) or 1,5,9; fractions are fine")
      ->type_name("FRAMES")
      ->capture_default_str();
  command
      .add_option("--job-frames", options.jobFrames,
                  "All frames of the job that this run is a part of: the graph and the report are "
                  "told places among them")
      ->type_name("FRAMES");
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
}

void addOutputOptions(CLI::App& command, RunOptions& options) {
  command.add_flag("--strict", options.strict, "Fail on a warning too");
  addList(command, "--only", options.only, "Evaluate and report only this output and what it needs")
      ->type_name("OUTPUT");
  addList(command, "--save", options.saves,
          "Save an output's values, arrays of numbers and vectors to a .npy file, meshes to a .ply "
          "file; {frame} or {frame:04} in the name is the frame")
      ->type_name("OUTPUT=FILE");
  command
      .add_option("--elements", options.elements,
                  "First elements of each array that journal and JSON report have; all for all of "
                  "them")
      ->type_name("NUMBER")
      ->capture_default_str();
}

void addReportOptions(CLI::App& command, RunOptions& options) {
  addList(
      command, "--report", options.reports,
      "Write a report of the run: a page for people to a file named *.html, a table to *.csv, "
      "else a JSON document; '-' is the standard output, and the text then goes to standard error")
      ->type_name("FILE");
  command
      .add_option("--picture", options.pictures,
                  "Frames of which the page has histograms of arrays and pictures of points and "
                  "meshes; the last one unless given")
      ->type_name("FRAMES");
  command.add_flag("--no-times", options.noTimes,
                   "Leave out of reports what another run of the same would tell differently");
}

void addJournalOptions(CLI::App& command, RunOptions& options) {
  command
      .add_option("--journal", options.journal,
                  "Keep a journal of the run, a line a frame, that outlives the process; 'vtlcmd "
                  "report' makes reports of it")
      ->type_name("FILE");
  CLI::Option* restart = command.add_flag("--restart", options.restart,
                                          "Begin the journal anew where one is there already");
  command
      .add_flag("--resume", options.resume,
                "Go on with the journal where one is there already: run the frames that are "
                "missing in it or failed")
      ->excludes(restart);
}

void addProgressOptions(CLI::App& command, RunOptions& options) {
  CLI::Option* progress = command.add_flag_callback(
      "--progress", [&options] { options.progress = true; },
      "Tell on standard error how far the run is, even off a terminal");
  command
      .add_flag_callback(
          "--no-progress", [&options] { options.progress = false; },
          "Never tell how far the run is")
      ->excludes(progress);
}

}  // namespace

// In the order in which help tells them.
void addRunOptions(CLI::App& command, RunOptions& options) {
  addGraphAndTexts(command, options);
  addFramesAndScene(command, options);
  addOutputOptions(command, options);
  addReportOptions(command, options);
  addJournalOptions(command, options);
  options.frameOptions.addTo(command);
  addProgressOptions(command, options);
  options.read.addTo(command);
  options.report.addTo(command);
}

RunOptions runOptionsFrom(const std::vector<std::string>& words) {
  RunOptions options;
  CLI::App command;
  command.allow_windows_style_options(false);
  addRunOptions(command, options);
  // The parser takes its words from the back; the first one is the command itself.
  command.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
  return options;
}

PortTexts textsFrom(const RunOptions& options, const Graph& graph) {
  PortTexts texts(graph);
  for (const std::string& assignment : options.files) texts.setFromFile(assignment);
  for (const std::string& assignment : options.inputs) texts.setInput(assignment);
  for (const std::string& assignment : options.jobs) texts.setJob(assignment);
  return texts;
}

void selectOutputs(const RunOptions& options, Graph& graph) {
  if (options.only.empty()) return;
  const std::set<std::string> wanted(options.only.begin(), options.only.end());
  for (const std::string& name : wanted) requireOutput(graph, name);
  for (const std::string& assignment : options.saves) {
    const std::string name = assignment.substr(0, assignment.find('='));
    if (!wanted.contains(name))
      throw UsageError("--only leaves out " + inQuotes(name) + ", which --save wants");
  }
  keepOutputs(graph, wanted);
}

RunSettings settingsFrom(const RunOptions& options, const PortTexts& texts,
                         std::vector<std::string> arguments) {
  RunSettings settings;
  settings.graphFile = filePath(options.graph);
  settings.arguments = std::move(arguments);
  settings.inputValues = texts.inputs();
  settings.jobValues = texts.jobs();
  settings.frames = options.jobFrames ? parsePartOfJob(options.frames, *options.jobFrames)
                                      : parseFrames(options.frames);
  settings.framesText = options.frames;
  settings.jobFramesText = options.jobFrames.value_or("");
  if (options.pictures)
    settings.pictureFrames =
        parsePictureFrames(*options.pictures, options.jobFrames.value_or(options.frames));
  settings.framesPerSecond = parseFramesPerSecond(options.framesPerSecond);
  settings.sceneFile = parsePath("--scene", options.scene);
  settings.secondaryPath = parsePath("--secondary", options.secondary);
  settings.verbosity = options.report.verbosity();
  settings.outputForm = options.report.outputForm();
  settings.strict = options.strict;
  settings.elements = parseElements(options.elements);
  settings.recordFrames = !options.reports.empty() || options.journal.has_value();
  return settings;
}

}  // namespace vtlcmd::runner

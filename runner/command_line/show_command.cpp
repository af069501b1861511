#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>

#include "command_line/commands.h"
#include "command_line/graph_run.h"
#include "command_line/output_targets.h"
#include "command_line/read_options.h"
#include "command_line/report_options.h"
#include "command_line/show_report.h"
#include "command_line/shown_files.h"
#include "command_line/terminal.h"
#include "command_line/usage_error.h"
#include "graph/graph_file.h"
#include "platform/interrupt.h"
#include "text/control_characters.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

struct ShowOptions {
  std::vector<std::string> files;
  bool vectors = false;
  bool json = false;
  std::vector<std::string> reports;
  bool noTimes = false;
  ReadOptions read;
  ReportOptions report;
};

/// What is written must leave what is read as it is.
void refuseTargets(const ShowOptions& options) {
  std::vector<std::filesystem::path> filesRead{options.report.plugInFile()};
  for (const std::string& file : options.files) {
    if (file != standardInput) filesRead.push_back(filePath(file));
  }
  OutputTargets targets(std::move(filesRead));
  if (options.json) targets.add("--json", OutputTargets::standardOutput);
  for (const std::string& report : options.reports) targets.add("--report", report);
}

RunEnd endOf(const ShownFiles& shown, const std::ostream& text) {
  const auto end = [](const char* outcome, ExitCode code) {
    return RunEnd{outcome, static_cast<int>(code), {}};
  };
  if (!text.good())
    return end("stopped", readerGone() ? ExitCode::readerGone : ExitCode::runFailed);
  if (interruptSignal() != 0) return end("interrupted", interruptedBy(interruptSignal()));
  return shown.isComplete() ? end("succeeded", ExitCode::success)
                            : end("failed", ExitCode::runFailed);
}

ExitCode showFiles(const ShowOptions& options, const std::vector<std::string>& arguments,
                   const RunReports& reports, const PlugIn& plugIn) {
  const bool makesDocument = options.json || !reports.empty();
  const TextSink text = reports.useStandardOutput() ? standardErrors() : standardOutput();
  // A document takes the text's place.
  const std::uint32_t verbosity =
      std::min(options.report.verbosity(), std::uint32_t{options.json ? levelWarning : levelDebug});
  VtlCmdLogger logger(options.report.printLimit());
  Progress noProgress(std::cerr, ProgressForm::none, options.files.size());
  MessagePrinter printer(logger, static_cast<std::int16_t>(verbosity), options.report.sinks(text),
                         noProgress);
  // Documents are whole, whatever ends the work before.
  if (makesDocument) rememberInterrupts();
  ShownFiles shown(
      plugIn.translation(), logger,
      {options.report.outputForm(), {.vectors = options.vectors, .widened = true}, makesDocument});
  for (const std::string& file : options.files) {
    if (interruptSignal() != 0 || !text.stream.good()) {
      shown.stop();
      break;
    }
    shown.add(file);
    printer.printNew();
  }
  const RunEnd end = endOf(shown, text.stream);
  const auto code = static_cast<ExitCode>(end.exitCode);
  if (!makesDocument) return code;
  const FrameRecord frame = shown.takeFrame();
  if (options.json) writeShownFiles(std::cout, shown.files(), frame);
  try {
    writeShowReports(
        reports, {shown.files(), frame, options.report.outputForm(), options.report.printLimit(),
                  options.report.plugInFile(), arguments, end});
  } catch (const OutputError& error) {
    std::cerr << "vtlcmd: " << error.what() << '\n';
    return worst(code, error);
  }
  return code;
}

/// Documents are written although nothing can be shown.
ExitCode tellLoadFailure(const ShowOptions& options, const std::vector<std::string>& arguments,
                         const RunReports& reports, const LoadError& failure) {
  std::cerr << "vtlcmd: " << withoutControls(failure.what()) << '\n';
  if (options.json) writeShownFiles(std::cout, {}, {});
  try {
    if (!reports.empty()) reportLoadFailure("show", arguments, reports, failure.what());
  } catch (const std::exception& error) {
    std::cerr << "vtlcmd: " << withoutControls(error.what()) << '\n';
  }
  return ExitCode::notLoaded;
}

ExitCode show(const ShowOptions& options, const std::vector<std::string>& arguments) {
  if (std::count(options.files.begin(), options.files.end(), standardInput) > 1)
    throw UsageError("the standard input can be shown only once");
  options.read.apply();
  refuseTargets(options);
  const RunReports reports(options.reports, !options.noTimes);
  std::optional<PlugIn> plugIn;
  try {
    plugIn.emplace(options.report.plugInFile());
  } catch (const LoadError& error) {
    return tellLoadFailure(options, arguments, reports, error);
  }
  return showFiles(options, arguments, reports, *plugIn);
}

}  // namespace

void addShowCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* command =
      app.add_subcommand("show", "Report what is in data files: .npy, .npz, .csv or a mesh");
  command
      ->add_option("FILE", options->files, "Data files; '-' is a .npy file from the standard input")
      ->required()
      ->type_name("");
  command->add_flag("--vectors", options->vectors,
                    "Take a last dimension of 2 to 4 floats in .npy files as vectors");
  command->add_flag("--json", options->json,
                    "Print a JSON document in place of the text: of each value its type, what the "
                    "file has, and the exact value");
  command
      ->add_option("--report", options->reports,
                   "Write a report as of a run of one frame: a page for people to a file named "
                   "*.html, a table to *.csv, else a JSON document; '-' is the standard output, "
                   "and the text then "
                   "goes to standard error")
      ->allow_extra_args(false)
      ->type_name("FILE");
  command->add_flag("--no-times", options->noTimes,
                    "Leave out of reports what another run of the same would tell differently");
  options->read.addTo(*command);
  options->report.addTo(*command);
  command->footer(R"(Examples:
  vtlcmd show temperatures.npy scan.ply
  vtlcmd show --vectors positions.npy --report positions.html
  vtlcmd show --json scan.npz | jq '.[].values[].in_file.shape'
  vtlcmd show -l 3 names.npy
  vtlcmd show - < temperatures.npy
)");
  command->callback([options, &state] { state.exitCode = show(*options, state.arguments); });
}

}  // namespace vtlcmd::runner

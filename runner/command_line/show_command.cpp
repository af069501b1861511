#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <new>

#include "command_line/commands.h"
#include "command_line/read_options.h"
#include "command_line/report_options.h"
#include "command_line/terminal.h"
#include "command_line/usage_error.h"
#include "execution/plug_in.h"
#include "graph/graph_file.h"
#include "readers/data_file.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

struct ShowOptions {
  std::vector<std::string> files;
  bool vectors = false;
  ReadOptions read;
  ReportOptions report;
};

/// Reports what is in a file. False when the plug-in has no report for some of it.
bool showValues(const std::string& file, const ShowOptions& options,
                const PlugIn::Translation& translation, RunContext& context) {
  bool complete = true;
  const NpyForm form{.vectors = options.vectors, .widened = true};
  for (const DataValue& data :
       file == standardInput ? readStandardInputArray(form) : readDataFile(filePath(file), form)) {
    const std::string name = data.name.empty() ? file : file + "/" + data.name;
    if (data.facts)
      context.logger->addMessage(vtlcmdSource, levelProgress, name + ": " + describe(*data.facts));
    for (const std::string& warning : data.warnings)
      context.logger->addMessage(vtlcmdSource, levelWarning, name + ": " + warning);
    complete &= reportOutput(translation, libraryText(name), data.value,
                             options.report.outputForm(), context);
  }
  return complete;
}

/// One entry of the report a file. False when the file can't be read or reported.
bool show(const std::string& file, const ShowOptions& options,
          const PlugIn::Translation& translation, RunContext& context) {
  const EntryScope entry(*context.logger, {});
  std::string problem;
  try {
    return showValues(file, options, translation, context);
  } catch (const std::bad_alloc&) {
    problem = file + ": there isn't enough memory for what is in it";
  } catch (const std::exception& error) {
    problem = error.what();
  }
  context.logger->addMessage(vtlcmdSource, levelError, problem);
  return false;
}

ExitCode showAll(const ShowOptions& options) {
  if (std::count(options.files.begin(), options.files.end(), standardInput) > 1)
    throw UsageError("the standard input can be shown only once");
  options.read.apply();
  VtlCmdLogger logger(options.report.printLimit());
  Progress noProgress(std::cerr, ProgressForm::none, options.files.size());
  MessagePrinter printer(logger, static_cast<std::int16_t>(options.report.verbosity()),
                         options.report.sinks(standardOutput()), noProgress);
  const PlugIn plugIn(options.report.plugInFile());
  const PortValueMap noTexts;
  RunContext context{&noTexts, &noTexts, 0, 0, 1, {}, {}, &logger};
  const GroupScope group(logger, "show");
  bool complete = true;
  for (const std::string& file : options.files) {
    complete &= show(file, options, plugIn.translation(), context);
    printer.printNew();
  }
  return complete ? ExitCode::success : ExitCode::runFailed;
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
  options->read.addTo(*command);
  options->report.addTo(*command);
  command->footer(R"(Examples:
  vtlcmd show temperatures.npy scan.ply
  vtlcmd show --vectors positions.npy
  vtlcmd show -l 3 names.npy
  vtlcmd show - < temperatures.npy
)");
  command->callback([options, &state] { state.exitCode = showAll(*options); });
}

}  // namespace vtlcmd::runner

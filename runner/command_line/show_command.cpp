#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/report_options.h"
#include "execution/plug_in.h"
#include "orvel_sdk/value_factory.h"
#include "readers/mesh.h"
#include "readers/npy.h"
#include "readers/read_error.h"

namespace vtlcmd {
namespace {

struct ShowOptions {
  std::vector<std::string> files;
  ReportOptions report;
};

Orvel::Value readData(const std::filesystem::path& file) {
  return file.extension() == ".npy" ? readNpy(file) : Orvel::makeValue(readMesh(file));
}

/// One entry of the report a file. False when the file can't be read or reported.
bool show(const std::string& file, const PlugIn::Translation& translation, OutputForm form,
          RunContext& context) {
  const EntryScope entry(*context.logger, {});
  try {
    return reportOutput(translation, file, readData(file), form, context);
  } catch (const std::exception& error) {
    context.logger->addMessage(vtlcmdSource, levelError, error.what());
    return false;
  }
}

ExitCode showAll(const ShowOptions& options) {
  VtlCmdLogger logger(options.report.printLimit());
  MessagePrinter printer(logger, static_cast<std::int16_t>(options.report.verbosity()),
                         options.report.streams(std::cout));
  const PlugIn plugIn(options.report.plugInFile());
  const PortValueMap noTexts;
  RunContext context{&noTexts, &noTexts, 0, 0, 1, {}, {}, &logger};
  const GroupScope group(logger, "show");
  bool complete = true;
  for (const std::string& file : options.files) {
    complete &= show(file, plugIn.translation(), options.report.outputForm(), context);
    printer.printNew();
  }
  return complete ? ExitCode::success : ExitCode::runFailed;
}

}  // namespace

void addShowCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* command = app.add_subcommand("show", "Report what is in data files: .npy or a mesh");
  command->add_option("FILE", options->files, "Data files")->required()->type_name("");
  options->report.addTo(*command);
  command->callback([options, &state] { state.exitCode = showAll(*options); });
}

}  // namespace vtlcmd

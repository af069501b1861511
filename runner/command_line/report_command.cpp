#include <CLI/App.hpp>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <system_error>

#include "command_line/commands.h"
#include "command_line/output_targets.h"
#include "command_line/run_reports.h"
#include "journal/journal_reader.h"
#include "report/run_report.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* footer = R"(Examples:
  vtlcmd report run.journal -o run.html
  vtlcmd report run.journal -o - | jq .totals

The exit code is 1 when frames of the run are missing.
)";

struct ReportCommandOptions {
  std::string journal;
  std::string output;
  /// Empty: by the output's name.
  std::string format;
  bool noTimes = false;
};

std::ifstream openJournal(const std::string& journal) {
  const std::filesystem::path file = filePath(journal);
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(file, ignored);
  if (exists(status) && !is_regular_file(status))
    throw JournalError(journal + " is no journal of a run");
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw JournalError(journal + ": " + std::generic_category().message(errno));
  return stream;
}

ReportForm formOf(const ReportCommandOptions& options) {
  ReportForm form{reportFormatOf(filePath(options.output)), !options.noTimes};
  if (options.format == "json") form.format = ReportFormat::json;
  if (options.format == "html") form.format = ReportFormat::html;
  return form;
}

void write(const ReportCommandOptions& options, const JournalSource& source) {
  if (options.output == OutputTargets::standardOutput)
    return writeReport(std::cout, source, formOf(options));
  try {
    writeReportFile(filePath(options.output), source, formOf(options));
  } catch (const std::system_error& error) {
    throw OutputError("the report can't be written to " + options.output, error);
  }
}

ExitCode report(const ReportCommandOptions& options) {
  OutputTargets({filePath(options.journal)}).add("-o", options.output);
  std::ifstream stream = openJournal(options.journal);
  const JournalSource source{stream, options.journal};
  const JournalSurvey survey = surveyJournal(source);
  try {
    write(options, source);
  } catch (const OutputError& error) {
    std::cerr << "vtlcmd: " << error.what() << '\n';
    return error.isTransient() ? ExitCode::tryAgain : ExitCode::runFailed;
  }
  if (survey.missing() == 0) return ExitCode::success;
  std::cerr << "vtlcmd: " << options.journal << ": " << survey.missing() << " of "
            << survey.frameCount() << " frames are missing\n";
  return ExitCode::runFailed;
}

}  // namespace

void addReportCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<ReportCommandOptions>();
  CLI::App* command = app.add_subcommand("report", "Make a report of a run from its journal");
  command->add_option("JOURNAL", options->journal, "Journal that 'vtlcmd run' kept")
      ->required()
      ->type_name("");
  command
      ->add_option("-o,--output", options->output,
                   "File of the report: a page for people when it is named *.html, else a JSON "
                   "document; '-' is the standard output")
      ->required()
      ->type_name("FILE");
  command->add_option("--format", options->format, "Form of the report, whatever its name")
      ->type_name("FORM")
      ->check(CLI::IsMember({"json", "html"}));
  command->add_flag("--no-times", options->noTimes,
                    "Leave out what another run of the same would tell differently");
  command->footer(footer);
  command->callback([options, &state] { state.exitCode = report(*options); });
}

}  // namespace vtlcmd::runner

#include <CLI/App.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "command_line/commands.h"
#include "command_line/output_targets.h"
#include "command_line/run_reports.h"
#include "command_line/usage_error.h"
#include "journal/journal_reader.h"
#include "report/run_report.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* reportFooter = R"(Examples:
  vtlcmd report run.journal -o run.html
  vtlcmd report part*.journal -o job.html
  vtlcmd report run.journal -o run.csv
  vtlcmd report run.journal -o - | jq .totals

Of a frame that ran more than once a success comes before a failure, then the
later run. The exit code is 1 when frames of the run are missing.
)";

struct ReportCommandOptions {
  std::vector<std::string> journals;
  std::string output;
  /// Empty: by the output's name.
  std::string format;
  bool noTimes = false;
};

ReportFormat formatOf(const ReportCommandOptions& options) {
  if (options.format == "json") return ReportFormat::json;
  if (options.format == "html") return ReportFormat::html;
  if (options.format == "csv") return ReportFormat::csv;
  return reportFormatOf(filePath(options.output));
}

void write(const ReportCommandOptions& options, Journals& journals, const JournalSurvey& survey) {
  const ReportFormat format = formatOf(options);
  if (options.output == OutputTargets::standardOutput)
    return writeReport(std::cout, journals, survey, format);
  try {
    writeReportFile(filePath(options.output), journals, survey, format);
  } catch (const std::system_error& error) {
    throw OutputError("the report can't be written to " + options.output, error);
  }
}

JournalSurvey surveyOfJob(Journals& journals) {
  try {
    return surveyJournals(journals);
  } catch (const ForeignJournal& error) {
    throw UsageError(error.what());
  }
}

/// So many ranges at most, that the line can be read.
std::string shortened(const std::string& frames) {
  constexpr std::size_t mostLength = 60;
  if (frames.size() <= mostLength) return frames;
  return frames.substr(0, frames.rfind(',', mostLength)) + ",...";
}

ExitCode report(const ReportCommandOptions& options) {
  std::vector<std::filesystem::path> files;
  for (const std::string& journal : options.journals) files.push_back(filePath(journal));
  OutputTargets(std::move(files)).add("-o", options.output);
  Journals journals(options.journals);
  JournalSurvey survey = surveyOfJob(journals);
  if (options.noTimes) dropTimes(survey);
  try {
    write(options, journals, survey);
  } catch (const OutputError& error) {
    std::cerr << "vtlcmd: " << error.what() << '\n';
    return error.isTransient() ? ExitCode::tryAgain : ExitCode::runFailed;
  }
  if (survey.missing() == 0) return ExitCode::success;
  std::cerr << "vtlcmd: " << survey.missing() << " of " << survey.frameCount()
            << " frames are missing: " << shortened(survey.missingFrames()) << '\n';
  return ExitCode::runFailed;
}

}  // namespace

void addReportCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<ReportCommandOptions>();
  CLI::App* command = app.add_subcommand("report", "Make a report of a run from its journal");
  command
      ->add_option("JOURNAL", options->journals,
                   "Journals that 'vtlcmd run' kept: of one run, or of parts of one job")
      ->required()
      ->type_name("");
  command
      ->add_option("-o,--output", options->output,
                   "File of the report: a page for people when it is named *.html, a table when "
                   "it is named *.csv, else a JSON document; '-' is the standard output")
      ->required()
      ->type_name("FILE");
  command->add_option("--format", options->format, "Form of the report, whatever its name")
      ->type_name("FORM")
      ->check(CLI::IsMember({"json", "html", "csv"}));
  command->add_flag("--no-times", options->noTimes,
                    "Leave out what another run of the same would tell differently");
  command->footer(reportFooter);
  command->callback([options, &state] { state.exitCode = report(*options); });
}

}  // namespace vtlcmd::runner

#include "command_line/run_reports.h"

#include <algorithm>
#include <iostream>
#include <system_error>

#include "command_line/output_targets.h"
#include "report/run_report.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

std::string refusal(const std::string& target) {
  return "the report can't be written to " + target;
}

}  // namespace

OutputError::OutputError(const std::string& what, const std::system_error& error)
    : std::runtime_error(what + ": " + reasonOf(error)), isTransient_(mayPass(error)) {}

ExitCode worst(ExitCode run, const OutputError& error) {
  if (run != ExitCode::success && run != ExitCode::tryAgain) return run;
  return error.isTransient() ? ExitCode::tryAgain : ExitCode::runFailed;
}

bool RunReports::useStandardOutput() const {
  return std::find(targets_.begin(), targets_.end(), OutputTargets::standardOutput) !=
         targets_.end();
}

std::optional<std::filesystem::path> RunReports::journalPlace() const {
  for (const std::string& target : targets_) {
    if (target == OutputTargets::standardOutput) continue;
    std::filesystem::path file = filePath(target);
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(file, ignored);
    if (exists(status) && !is_regular_file(status)) continue;
    return file += ".journal";
  }
  return std::nullopt;
}

void RunReports::keep(const std::filesystem::path& file) {
  for (const std::string& target : targets_) {
    if (target != OutputTargets::standardOutput && areSameFile(filePath(target), file))
      kept_.insert(target);
  }
}

void RunReports::write(Journals journal) const {
  if (empty()) return;
  JournalSurvey survey = surveyJournals(journal);
  if (!withTimes_) dropTimes(survey);
  std::optional<OutputError> failure;
  for (const std::string& target : targets_) {
    try {
      write(target, journal, survey);
    } catch (const std::system_error& error) {
      if (!failure) failure.emplace(refusal(target), error);
    } catch (const OutputError& error) {
      if (!failure) failure = error;
    }
  }
  if (failure) throw OutputError(*failure);
}

void RunReports::write(const std::string& target, Journals& journal,
                       const JournalSurvey& survey) const {
  // Of the standard output the program itself takes care at its end.
  if (target == OutputTargets::standardOutput)
    return writeReport(std::cout, journal, survey, ReportFormat::json);
  if (kept_.contains(target)) throw OutputError(refusal(target) + ": the run has read it");
  const std::filesystem::path path = filePath(target);
  writeReportFile(path, journal, survey, reportFormatOf(path));
}

}  // namespace vtlcmd::runner

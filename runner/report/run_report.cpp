#include "report/run_report.h"

#include "journal/journal_reader.h"
#include "report/html_report.h"
#include "report/json_report.h"
#include "report/whole_file.h"

namespace vtlcmd::runner {

ReportFormat reportFormatOf(const std::filesystem::path& file) {
  const std::filesystem::path extension = file.extension();
  return extension == ".html" || extension == ".htm" ? ReportFormat::html : ReportFormat::json;
}

void writeReport(std::ostream& stream, const JournalSource& source, const ReportForm& form) {
  try {
    JournalSurvey survey = surveyJournal(source);
    if (!form.withTimes) survey.runTimes = survey.endTimes = nullptr;
    (form.format == ReportFormat::html ? writeHtmlReport : writeJsonReport)(stream, source, survey);
  } catch (const nlohmann::json::exception&) {
    throw JournalError(source.name + " lacks something that journals have");
  }
}

void writeReportFile(const std::filesystem::path& file, const JournalSource& source,
                     const ReportForm& form) {
  WholeFile::removeLeftovers(file);
  WholeFile whole(file);
  writeReport(whole.stream(), source, form);
  whole.commit();
}

}  // namespace vtlcmd::runner

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

void writeReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey,
                 ReportFormat format) {
  try {
    (format == ReportFormat::html ? writeHtmlReport : writeJsonReport)(stream, journals, survey);
  } catch (const nlohmann::json::exception&) {
    throw JournalError(journals.name(0) + " lacks something that journals have");
  }
}

void writeReportFile(const std::filesystem::path& file, Journals& journals,
                     const JournalSurvey& survey, ReportFormat format) {
  WholeFile::removeLeftovers(file);
  WholeFile whole(file);
  writeReport(whole.stream(), journals, survey, format);
  whole.commit();
}

void dropTimes(JournalSurvey& survey) { survey.runTimes = survey.endTimes = nullptr; }

}  // namespace vtlcmd::runner

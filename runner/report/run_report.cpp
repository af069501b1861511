#include "report/run_report.h"

#include <array>
#include <cstddef>

#include "journal/journal_reader.h"
#include "report/csv_report.h"
#include "report/html_report.h"
#include "report/json_report.h"
#include "report/whole_file.h"

namespace vtlcmd::runner {
namespace {

using Writer = void (*)(std::ostream&, Journals&, const JournalSurvey&);

/// By ReportFormat.
constexpr std::array<Writer, 3> writers{writeJsonReport, writeHtmlReport, writeCsvReport};

}  // namespace

ReportFormat reportFormatOf(const std::filesystem::path& file) {
  const std::filesystem::path extension = file.extension();
  if (extension == ".html" || extension == ".htm") return ReportFormat::html;
  return extension == ".csv" ? ReportFormat::csv : ReportFormat::json;
}

void writeReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey,
                 ReportFormat format) {
  try {
    writers[static_cast<std::size_t>(format)](stream, journals, survey);
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

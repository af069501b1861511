#pragma once

#include <filesystem>
#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

enum class ReportFormat { json, html, csv };

/// A page for people in files named *.html and *.htm, a table in those named *.csv, else a document
/// for scripts.
ReportFormat reportFormatOf(const std::filesystem::path& file);

/// Writes the report that journals give; the survey is theirs. Takes no memory that grows with the
/// frames. Throws JournalError.
void writeReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey,
                 ReportFormat format);

/// Writes it to a file that appears whole or not at all. Throws std::system_error too.
void writeReportFile(const std::filesystem::path& file, Journals& journals,
                     const JournalSurvey& survey, ReportFormat format);

/// Takes out of a survey what another run of the same would tell differently: times, arguments,
/// machine.
void dropTimes(JournalSurvey& survey);

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

enum class ReportFormat { json, html };

/// A page for people in files named *.html and *.htm, else a document for scripts.
ReportFormat reportFormatOf(const std::filesystem::path& file);

struct ReportForm {
  ReportFormat format = ReportFormat::json;
  /// With what another run of the same would tell differently: times, arguments, machine.
  bool withTimes = true;
};

/// Writes the report that a journal gives, in memory that doesn't grow with the frames. Throws
/// JournalError, before anything is written.
void writeReport(std::ostream& stream, const JournalSource& source, const ReportForm& form);

/// Writes it to a file that appears whole or not at all. Throws std::system_error too.
void writeReportFile(const std::filesystem::path& file, const JournalSource& source,
                     const ReportForm& form);

}  // namespace vtlcmd::runner

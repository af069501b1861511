#pragma once

#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// Writes the report of journals as a page for people, which needs no other file. Throws
/// JournalError.
void writeHtmlReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey);

}  // namespace vtlcmd::runner

#pragma once

#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// Writes the report of a journal as a page for people, which needs no other file. Throws
/// JournalError.
void writeHtmlReport(std::ostream& stream, const JournalSource& source,
                     const JournalSurvey& survey);

}  // namespace vtlcmd::runner

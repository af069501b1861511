#pragma once

#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// Writes the report of journals as one JSON document, a line a frame. The block "times" is left
/// out when the survey has none. Throws JournalError.
void writeJsonReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey);

}  // namespace vtlcmd::runner

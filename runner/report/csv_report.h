#pragma once

#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// Writes the report of journals as a table for spreadsheets and scripts, as RFC 4180 has it: a row
/// a frame, a column for each flag and count of a frame, for its times unless the survey has none,
/// and for each part of an output's exact value but the elements of arrays. Cells of what a frame
/// lacks are empty. Throws JournalError.
void writeCsvReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey);

}  // namespace vtlcmd::runner

#pragma once

#include <iosfwd>

#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// The top of a page: what was run, how it ended, with which words, where and when.
void writePageHead(std::ostream& page, const JournalSurvey& survey);

/// The texts that the run was given.
void writeGivenTexts(std::ostream& page, const JournalSurvey& survey);

}  // namespace vtlcmd::runner

#pragma once

#include <string>

#include "command_line/run_options.h"
#include "command_line/run_reports.h"
#include "journal/earlier_run.h"
#include "journal/journal_file.h"

namespace vtlcmd::runner {

/// A journal that is open to be written, and what it holds already.
struct OpenJournal {
  JournalFile file;
  EarlierRun earlier = {};
};

/// Whether a run needs a journal: the user asks for it, or for a report.
bool needsJournal(const RunOptions& options, const RunReports& reports);

/// Throws UsageError when a run is to go on that has no journal with a name.
void refuseLostResume(const RunOptions& options);

/// Opens the journal that a run needs: the one that the user asks for, else one beside the first
/// report, else one without a name for reports that go elsewhere. It is begun, or goes on where the
/// user wants that; `runContent` and `frames` are as `readEarlierRun` wants them. Throws UsageError
/// for a file that can't be written, that is no journal, that holds one while nothing says what is
/// to become of it, or that holds one of another run; JournalError for one that is damaged.
OpenJournal openJournal(const RunOptions& options, const RunReports& reports,
                        const std::string& runContent, const FrameList& frames);

}  // namespace vtlcmd::runner

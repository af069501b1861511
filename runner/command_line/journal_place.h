#pragma once

#include <optional>

#include "command_line/run_options.h"
#include "command_line/run_reports.h"
#include "journal/journal_file.h"

namespace vtlcmd::runner {

/// Begins the journal that a run needs: the one that the user asks for, else one beside the first
/// report, else one without a name for reports that go elsewhere; nothing when nobody asks for
/// either. Throws UsageError for a file that can't be written, that is no journal, or that holds a
/// journal while nothing says that it may be replaced.
std::optional<JournalFile> openJournal(const RunOptions& options, const RunReports& reports);

}  // namespace vtlcmd::runner

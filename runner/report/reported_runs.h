#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "report/journals.h"

namespace vtlcmd::runner {

/// Journals of runs that don't belong together, in words for the user.
class ForeignJournal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A run that frames of a report come from, in one of its journals.
struct ReportedRun {
  /// By these runs compare: the greater is the later.
  std::tuple<std::uint64_t, std::string, std::string, std::uint64_t> attemptStartHostProcess;
  const std::string& host() const { return std::get<2>(attemptStartHostProcess); }
  /// The place of the journal, and that of the run's line in it.
  std::size_t journal = 0;
  std::uint64_t offset = 0;
  /// The run's place among all from 0 on; where journals are copies they tell of the same run.
  std::size_t number = 0;
  /// "times" of its first line as JSON.
  std::string times;
  /// Of its last line as JSON; empty when it was cut off.
  std::string end;
  std::string endTimes;
};

/// The runs of all journals, from the earliest to the latest.
struct ReportedRuns {
  std::vector<ReportedRun> runs;
  /// What they name as their jobs.
  std::set<std::string> jobTexts;
};

/// Reads journals for their runs. Those that end in their first line have none. Throws
/// JournalError, and ForeignJournal for runs whose keys differ.
ReportedRuns readRuns(Journals& journals);

}  // namespace vtlcmd::runner

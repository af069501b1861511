#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "report/frame_entry.h"
#include "report/job.h"
#include "report/journals.h"
#include "report/reported_runs.h"
#include "text/json.h"

namespace vtlcmd::runner {

/// What the journals of a report tell in all: the frames of one job, each once. What is chosen
/// doesn't depend on the order of the journals: of a frame's lines one of a success before one of a
/// failure, then that of the later run, then the later line.
struct JournalSurvey {
  /// The first run's line; "frames" and "frame_count" are those of the whole job.
  Json run;
  /// Of the first run; null when the report is to be without times.
  Json runTimes;
  /// How it all ended, as an "end" line tells it; null when the job didn't come to its end.
  Json end;
  Json endTimes;
  /// Those that are there, and what is counted of them.
  std::uint64_t frames = 0;
  std::uint64_t failed = 0;
  std::uint64_t graphErrors = 0;
  std::uint64_t graphWarnings = 0;
  /// Critical messages, errors and warnings of whatever source, by the level's name, those of no
  /// frame too.
  std::map<std::string, std::uint64_t> problems;

  /// From the earliest to the latest.
  std::vector<ReportedRun> runs;
  Job job;
  /// By index in the job.
  std::vector<FrameEntry> entries;

  /// Frames of the whole job.
  std::uint64_t frameCount() const { return entries.size(); }
  std::uint64_t missing() const { return frameCount() - frames; }
  /// A list of the frames that are missing; empty when none is.
  std::string missingFrames() const;
  /// That of the end; "cut off" without one.
  std::string outcome() const;
};

/// Reads journals from one end to the other. Takes some 50 bytes a frame. Throws JournalError, and
/// ForeignJournal when they are of more than one job.
JournalSurvey surveyJournals(Journals& journals);

}  // namespace vtlcmd::runner

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "report/frame_facts.h"
#include "report/job.h"
#include "report/journals.h"
#include "report/reported_runs.h"

namespace vtlcmd::runner {

/// Where the line of a frame stands, and what is counted of it. 32 bytes, since a report of a
/// million frames has a million of them.
struct FrameEntry {
  /// Of the line's first byte in its journal.
  std::uint64_t offset : 60;
  /// A Failure.
  std::uint64_t failure : 2;
  std::uint64_t interrupted : 1;
  /// Whether there is such a line.
  std::uint64_t isThere : 1;
  /// The place of the frame's run among those of the report.
  std::uint32_t run = 0;
  std::uint32_t graphErrors = 0;
  std::uint32_t graphWarnings = 0;
  std::array<std::uint32_t, problemLevels.size()> problems{};

  /// A frame that isn't there.
  FrameEntry() : offset(0), failure(0), interrupted(0), isThere(0) {}
  FrameEntry(const FrameFacts& facts, std::uint64_t lineOffset, std::size_t runPlace);

  bool succeeded() const noexcept { return failure == static_cast<std::uint64_t>(Failure::none); }
};

static_assert(sizeof(FrameEntry) == 32);

/// Reads journals for their frames: by index in the job, where each stands. Of several lines of a
/// frame one of a success comes before one of a failure, then that of the later run, then the later
/// line. Throws JournalError.
std::vector<FrameEntry> readEntries(Journals& journals, const std::vector<ReportedRun>& runs,
                                    const Job& job);

}  // namespace vtlcmd::runner

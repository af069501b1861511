#pragma once

#include <vector>

#include "report/frame_entry.h"
#include "report/reported_runs.h"
#include "text/json.h"

namespace vtlcmd::runner {

/// How a job ended, as an "end" line tells it. A single run tells it itself. Of several runs the
/// frames tell it when all are there, else the latest run that didn't run to its own end. Null when
/// that was cut off, or when there is no such run: the job never came to its end.
Json endOfJob(const std::vector<ReportedRun>& runs, const std::vector<FrameEntry>& entries);

}  // namespace vtlcmd::runner

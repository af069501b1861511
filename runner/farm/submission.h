#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "farm/farm_folder.h"
#include "farm/farm_job.h"

namespace vtlcmd::runner {

/// Writes the files of a new submission, whose tasks run a chunk of frames each, and hands them to
/// the scheduler. Gives the submission's number. When anything fails, nothing of it is left; throws
/// std::system_error and SchedulerError.
std::size_t submitChunks(const FarmFolder& folder, const FarmJob& job,
                         const std::vector<std::string>& chunks);

/// The exit code with which the report of a submission was made; nothing before.
std::optional<int> reportedCode(const FarmFolder& folder, std::size_t submission);

}  // namespace vtlcmd::runner

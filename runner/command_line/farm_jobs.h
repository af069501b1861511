#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "command_line/graph_run.h"
#include "command_line/run_options.h"
#include "execution/exit_code.h"
#include "farm/farm_folder.h"
#include "farm/farm_job.h"
#include "farm/scheduler.h"

/// What the commands that hand frames to a farm share.

namespace vtlcmd::runner {

/// The folder of a job, by its name on the command line. Throws UsageError for any other folder.
FarmFolder farmFolder(const std::string& name);

/// What the frames' values follow from, as a journal of the run tells it: a JSON object.
std::string keyOf(const LoadedRun& run, const RunOptions& options);

/// How many tasks the cluster allows in an array. Nothing when it can't be asked in a dry run, else
/// throws SchedulerError.
std::optional<std::size_t> mostTasks(bool dryRun);

/// The frames in chunks as the job has them, larger where they are more than `most`, which is said
/// on standard error.
std::vector<std::string> chunksFor(const FarmJob& job, std::span<const double> frames,
                                   std::optional<std::size_t> most);

/// Prints the script of the tasks that a submission would have.
void printTasks(const FarmFolder& folder, const FarmJob& job, std::size_t submission,
                const std::vector<std::string>& chunks);

/// Submits the chunks and prints the numbers of both jobs. Gives the submission's number. Throws
/// SchedulerError, and std::system_error where the folder can't be written.
std::size_t submit(const FarmFolder& folder, const FarmJob& job,
                   const std::vector<std::string>& chunks);

/// Stays until the report of a submission is there and gives the exit code of the whole run.
ExitCode waitForReport(const FarmFolder& folder, std::size_t submission, std::size_t frames);

/// Tells of the error and gives the exit code for it.
ExitCode tellOf(const SchedulerError& error);

}  // namespace vtlcmd::runner

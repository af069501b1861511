#pragma once

#include <CLI/App.hpp>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "command_line/graph_run.h"
#include "command_line/run_options.h"
#include "farm/farm_job.h"

namespace vtlcmd::runner {

/// What the command line of `submit` says.
struct SubmitOptions {
  RunOptions run;
  std::string folder;
  std::optional<std::string> chunk;
  std::string chunkSeconds = "60";
  bool copy = false;
  bool dryRun = false;
  bool wait = false;
  std::vector<std::string> schedulerWords;
  /// Of `run`, those that this command has too.
  std::vector<const CLI::Option*> runOptions;
};

/// Adds them to the command; they must outlive the parse.
void addSubmitOptions(CLI::App& command, SubmitOptions& options);

/// Adds `--dry-run` and `--wait`.
void addSubmissionOptions(CLI::App& command, bool& dryRun, bool& wait);

/// Throws UsageError for what no task could do, or what isn't left to the scheduler's options.
/// `arguments` is the whole command line.
void checkSubmitOptions(const SubmitOptions& options, const std::vector<std::string>& arguments);

/// Frames of a task as the options have it, else after a trial of the first frame.
std::size_t wantedChunkSize(const SubmitOptions& options, const LoadedRun& loaded);

/// The words of `run` for the tasks. With copies, files that the options name have names that lead
/// to these too.
std::vector<std::string> taskWords(const SubmitOptions& options);

/// The graph and the files that the options name, by such names.
std::vector<std::filesystem::path> inputFiles(const SubmitOptions& options);

/// Absolute. The folder's own one when the options name none.
std::vector<std::filesystem::path> reportFiles(const SubmitOptions& options,
                                               const FarmFolder& folder);

}  // namespace vtlcmd::runner

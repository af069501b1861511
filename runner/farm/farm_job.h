#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "farm/farm_folder.h"
#include "text/load_error.h"

namespace vtlcmd::runner {

/// A file of a farm's folder that can't be read, in words for the user that name it.
class FarmError : public LoadError {
 public:
  using LoadError::LoadError;
};

/// What a farm is asked to run.
struct FarmJob {
  /// This program, by its absolute path.
  std::filesystem::path program;
  /// The folder that relative names in the words mean, absolute.
  std::filesystem::path workingFolder;
  std::string graph;
  /// Words of `vtlcmd run` behind the graph, without those of frames and files to write.
  std::vector<std::string> runWords;
  /// Of the whole job, as the user gave them.
  std::string frames;
  std::size_t chunkSize = 1;
  /// Absolute.
  std::vector<std::filesystem::path> reports;
  /// Words of `vtlcmd report` behind its files.
  std::vector<std::string> reportWords;
  /// Words of the scheduler's command, for tasks and report.
  std::vector<std::string> schedulerWords;
  /// What the frames' values follow from, as the runs' journals tell it: a JSON object.
  std::string key;
};

/// Writes the job to its file. Throws std::system_error.
void writeFarmJob(const FarmFolder& folder, const FarmJob& job);

/// Whether a job was ever written there.
bool holdsFarmJob(const FarmFolder& folder);

/// Throws FarmError.
FarmJob readFarmJob(const FarmFolder& folder);

/// The scheduler's numbers of a submission's jobs.
struct SubmittedJobs {
  std::string tasks;
  std::string report;
};

/// The first one throws std::system_error, the second one FarmError. A submission that was cut off
/// before it was told numbers has empty ones.
void writeSubmittedJobs(const FarmFolder& folder, std::size_t submission,
                        const SubmittedJobs& jobs);
SubmittedJobs readSubmittedJobs(const FarmFolder& folder, std::size_t submission);

}  // namespace vtlcmd::runner

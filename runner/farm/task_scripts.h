#pragma once

#include <cstddef>
#include <string>

#include "farm/farm_folder.h"
#include "farm/farm_job.h"

namespace vtlcmd::runner {

/// Shell scripts for the scheduler of one submission of a job. They say all there is to know but
/// the job's own options for the scheduler.
class TaskScripts {
 public:
  TaskScripts(const FarmFolder& folder, const FarmJob& job, std::size_t submission);

  /// Runs the frames of each of so many tasks.
  std::string tasks(std::size_t count) const;
  /// Makes the reports of all that is there.
  std::string report() const;

 private:
  std::string head(const std::string& nameEnding, const std::string& logName) const;

  const FarmFolder& folder_;
  const FarmJob& job_;
  std::string submission_;
};

}  // namespace vtlcmd::runner

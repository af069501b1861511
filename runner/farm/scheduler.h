#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

/// The cluster's scheduler, Slurm, through its own commands. All throw SchedulerError.

namespace vtlcmd::runner {

/// A command of the scheduler that isn't there or that failed, in words for the user.
class SchedulerError : public std::runtime_error {
 public:
  SchedulerError(const std::string& text, bool isAbsent)
      : std::runtime_error(text), isAbsent_(isAbsent) {}

  bool isAbsent() const noexcept { return isAbsent_; }

 private:
  bool isAbsent_;
};

/// How many tasks an array may have that begins with task 1.
std::size_t mostArrayTasks();

/// The words that submit a script. A job with a predecessor begins when that one has ended, however
/// it did.
std::vector<std::string> submitWords(const std::vector<std::string>& options,
                                     const std::string& script, const std::string& predecessor);

/// Runs such words and gives the number of the job. What the command says besides goes to standard
/// error.
std::string submitJob(const std::vector<std::string>& words);

/// Of jobs of this user, those that have not ended yet.
std::vector<std::string> jobsNotEnded(const std::vector<std::string>& jobs);

void cancelJob(const std::string& job);

}  // namespace vtlcmd::runner

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace vtlcmd::runner {

/// The folder of a job on a farm, on a file system that all its machines see.
///
///   job.json                        what is run, written once
///   inputs/                         copies of what it reads, by their absolute paths
///   submissions/1/frames            a line a task: its frames
///   submissions/1/tasks.sh          the array of tasks
///   submissions/1/report.sh         what makes the report after them
///   submissions/1/jobs.json         the scheduler's numbers of both
///   submissions/1/reported          the exit code of the report
///   journals/1-7.journal            of task 7 of submission 1; 1-7-2 after its second restart
///   logs/1-7.log  logs/1-report.log what they printed
///
/// Each file has one writer, so nothing is ever locked.
class FarmFolder {
 public:
  /// `folder` is absolute.
  explicit FarmFolder(std::filesystem::path folder) : path_(std::move(folder)) {}

  const std::filesystem::path& path() const noexcept { return path_; }
  std::filesystem::path job() const { return path_ / "job.json"; }
  std::filesystem::path inputs() const { return path_ / "inputs"; }
  std::filesystem::path journals() const { return path_ / "journals"; }
  std::filesystem::path logs() const { return path_ / "logs"; }
  /// The place of a path in the copies' tree.
  std::filesystem::path copyOf(const std::filesystem::path& absolute) const;

  std::filesystem::path submission(std::size_t number) const;
  /// How many there are; they are numbered from 1.
  std::size_t submissions() const;

  /// In the order of their submissions, tasks and restarts. Throws
  /// std::filesystem::filesystem_error.
  std::vector<std::filesystem::path> journalFiles() const;

 private:
  std::filesystem::path path_;
};

/// What stands in `submissions/N`.
namespace submission_files {
inline constexpr const char* frames = "frames";
inline constexpr const char* tasks = "tasks.sh";
inline constexpr const char* report = "report.sh";
inline constexpr const char* jobs = "jobs.json";
inline constexpr const char* reported = "reported";
}  // namespace submission_files

}  // namespace vtlcmd::runner

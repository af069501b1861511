#include "farm/submission.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>

#include "farm/scheduler.h"
#include "farm/task_scripts.h"
#include "report/whole_file.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

void writeText(const fs::path& file, const std::string& text) {
  WholeFile whole(file);
  whole.stream() << text;
  whole.commit();
}

std::string linesOf(const std::vector<std::string>& texts) {
  std::string lines;
  for (const std::string& text : texts) lines += text + "\n";
  return lines;
}

void withdraw(const std::vector<std::string>& jobs) {
  for (const std::string& job : jobs) {
    try {
      cancelJob(job);
    } catch (const SchedulerError& error) {
      std::cerr << "vtlcmd: job " << job << " can't be cancelled: " << error.what() << '\n';
    }
  }
}

}  // namespace

std::size_t submitChunks(const FarmFolder& folder, const FarmJob& job,
                         const std::vector<std::string>& chunks) {
  const std::size_t number = folder.submissions() + 1;
  const fs::path files = folder.submission(number);
  // Whoever makes the folder has the number.
  if (!fs::create_directory(files)) throw std::system_error(EEXIST, std::generic_category());
  std::vector<std::string> jobs;
  const auto submit = [&](const char* script, const std::string& predecessor) {
    jobs.push_back(
        submitJob(submitWords(job.schedulerWords, fileText(files / script), predecessor)));
  };
  try {
    const TaskScripts scripts(folder, job, number);
    writeText(files / submission_files::frames, linesOf(chunks));
    writeText(files / submission_files::tasks, scripts.tasks(chunks.size()));
    writeText(files / submission_files::report, scripts.report());
    submit(submission_files::tasks, "");
    submit(submission_files::report, jobs.front());
    writeSubmittedJobs(folder, number, {jobs.front(), jobs.back()});
  } catch (...) {
    // Tasks without a job for their report would leave the user waiting.
    withdraw(jobs);
    std::error_code ignored;
    fs::remove_all(files, ignored);
    throw;
  }
  return number;
}

std::optional<int> reportedCode(const FarmFolder& folder, std::size_t submission) {
  std::ifstream stream(folder.submission(submission) / submission_files::reported);
  int code = 0;
  // The file may be there before what is written to it.
  if (!(stream >> code) || stream.get() != '\n') return std::nullopt;
  return code;
}

}  // namespace vtlcmd::runner

#include "command_line/farm_jobs.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <system_error>
#include <thread>

#include "command_line/option_values.h"
#include "command_line/usage_error.h"
#include "farm/chunks.h"
#include "farm/frame_survey.h"
#include "farm/submission.h"
#include "farm/task_scripts.h"
#include "journal/run_line.h"
#include "text/json.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/shell_quoting.h"

namespace vtlcmd::runner {
namespace {

constexpr std::chrono::seconds reportPollTime{2};

/// How many times a file is looked for before the scheduler is asked once; it serves many users.
constexpr int looksPerQuestion = 8;

/// How long a file of another machine may take to be seen here.
constexpr std::chrono::seconds networkFileTime{30};

/// Whether the job has ended, as far as the scheduler can be asked.
bool hasEnded(const std::string& job) {
  try {
    return jobsNotEnded({job}).empty();
  } catch (const SchedulerError&) {
    return false;
  }
}

/// The exit code of the report; nothing when its job ended without one.
std::optional<int> awaitReportedCode(const FarmFolder& folder, std::size_t submission) {
  const std::string job = readSubmittedJobs(folder, submission).report;
  std::optional<std::chrono::steady_clock::time_point> deadline;
  for (int look = 1;; ++look) {
    if (const std::optional<int> code = reportedCode(folder, submission)) return code;
    const auto now = std::chrono::steady_clock::now();
    if (deadline && now > *deadline) return std::nullopt;
    if (!deadline && look % looksPerQuestion == 0 && hasEnded(job))
      deadline = now + networkFileTime;
    std::this_thread::sleep_for(reportPollTime);
  }
}

/// As one run of all frames gives it.
ExitCode codeOf(const std::vector<FrameState>& states) {
  const auto has = [&](FrameState state) {
    return std::find(states.begin(), states.end(), state) != states.end();
  };
  if (has(FrameState::missing) || has(FrameState::started) || has(FrameState::failed))
    return ExitCode::runFailed;
  return has(FrameState::failedForNow) ? ExitCode::tryAgain : ExitCode::success;
}

}  // namespace

FarmFolder farmFolder(const std::string& name) {
  if (!name.empty()) {
    FarmFolder folder(std::filesystem::absolute(filePath(name)).lexically_normal());
    if (holdsFarmJob(folder)) return folder;
  }
  throw UsageError(inQuotes(name) + " is no folder of 'vtlcmd submit'");
}

std::string keyOf(const LoadedRun& run, const RunOptions& options) {
  return parseJson(runContent(run.graph, run.settings, run.plugInFile, options.report.printLimit()))
      .at("key")
      .dump();
}

std::optional<std::size_t> mostTasks(bool dryRun) {
  try {
    return mostArrayTasks();
  } catch (const SchedulerError&) {
    if (!dryRun) throw;
    return std::nullopt;
  }
}

std::vector<std::string> chunksFor(const FarmJob& job, std::span<const double> frames,
                                   std::optional<std::size_t> most) {
  std::size_t size = job.chunkSize;
  if (most) {
    const std::size_t least = leastChunkSize(frames.size(), *most);
    if (least > size) {
      std::cerr << "vtlcmd: " << least << " frames a task instead of " << size
                << ": the cluster allows " << *most << " tasks in an array (MaxArraySize)\n";
      size = least;
    }
  }
  return chunksOf(frames, size);
}

void printTasks(const FarmFolder& folder, const FarmJob& job, std::size_t submission,
                const std::vector<std::string>& chunks) {
  std::cout << TaskScripts(folder, job, submission).tasks(chunks.size());
  std::cerr << "vtlcmd: a dry run: " << chunks.size() << " tasks, from frames " << chunks.front()
            << " to frames " << chunks.back() << ", for "
            << shellQuotedWords(submitWords(job.schedulerWords, "SCRIPT", "")) << '\n';
}

std::size_t submit(const FarmFolder& folder, const FarmJob& job,
                   const std::vector<std::string>& chunks) {
  const std::size_t submission = submitChunks(folder, job, chunks);
  const SubmittedJobs jobs = readSubmittedJobs(folder, submission);
  std::cout << "job " << jobs.tasks << ": " << chunks.size()
            << (chunks.size() == 1 ? " task" : " tasks") << "\njob " << jobs.report << ": report";
  for (const std::filesystem::path& report : job.reports) std::cout << ' ' << fileText(report);
  std::cout << std::endl;
  return submission;
}

ExitCode waitForReport(const FarmFolder& folder, std::size_t submission, std::size_t frames) {
  const std::optional<int> code = awaitReportedCode(folder, submission);
  const bool isMade = code && (*code == static_cast<int>(ExitCode::success) ||
                               *code == static_cast<int>(ExitCode::runFailed));
  if (isMade) return codeOf(surveyFrames(folder, frames));
  std::cerr << "vtlcmd: the report isn't there; "
            << fileText(folder.logs() / (std::to_string(submission) + "-report.log"))
            << " may tell why\n";
  return ExitCode::runFailed;
}

ExitCode tellOf(const SchedulerError& error) {
  std::cerr << "vtlcmd: " << error.what() << '\n';
  return error.isAbsent() ? ExitCode::usage : ExitCode::runFailed;
}

}  // namespace vtlcmd::runner

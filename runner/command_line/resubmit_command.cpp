#include <CLI/App.hpp>
#include <iostream>
#include <memory>
#include <system_error>

#include "command_line/commands.h"
#include "command_line/farm_jobs.h"
#include "command_line/option_values.h"
#include "command_line/scheduler_words.h"
#include "command_line/submit_options.h"
#include "command_line/usage_error.h"
#include "farm/frame_survey.h"
#include "journal/run_key.h"
#include "text/path_text.h"
#include "text/shell_quoting.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* resubmitFooter = R"(Examples:
  vtlcmd resubmit /farm/scatter
  vtlcmd resubmit /farm/scatter --wait -- --mem=8G

Frames that are done aren't run again; the report is made anew of all of them.
)";

struct ResubmitOptions {
  std::string folder;
  bool dryRun = false;
  bool wait = false;
  std::vector<std::string> schedulerWords;
};

std::vector<double> framesLeft(const FarmFolder& folder, const std::vector<double>& frames) {
  const std::vector<FrameState> states = surveyFrames(folder, frames.size());
  std::vector<double> left;
  for (std::size_t i = 0; i < frames.size(); ++i) {
    if (states[i] != FrameState::done) left.push_back(frames[i]);
  }
  return left;
}

/// Two jobs at the same frames would be of no use.
void refuseWhileRunning(const FarmFolder& folder) {
  std::vector<std::string> jobs;
  for (std::size_t i = 1; i <= folder.submissions(); ++i) {
    const SubmittedJobs submitted = readSubmittedJobs(folder, i);
    jobs.push_back(submitted.tasks);
    jobs.push_back(submitted.report);
  }
  jobs = jobsNotEnded(jobs);
  if (jobs.empty()) return;
  throw UsageError("job " + jobs.front() + " of this folder hasn't ended: wait, or end it with " +
                   "'scancel " + jobs.front() + "'");
}

/// The key of what the job's words run today. Makes the job's working folder this process's.
std::string keyOf(const FarmJob& job) {
  std::filesystem::current_path(job.workingFolder);
  std::vector<std::string> words{"run", job.graph};
  words.insert(words.end(), job.runWords.begin(), job.runWords.end());
  RunOptions options = runOptionsFrom(words);
  options.frames = job.frames;
  const LoadedRun run = loadRun(options, {});
  return keyOf(run, options);
}

/// Frames of something else would fit no report.
void refuseChanges(const FarmJob& job) {
  const std::string changed = keyDifference(parseJson(job.key), parseJson(keyOf(job)));
  if (!changed.empty())
    throw UsageError("since the job was submitted there have changed: " + changed +
                     "; 'vtlcmd submit' to a new folder runs all anew");
}

ExitCode resubmit(const ResubmitOptions& options, const std::vector<std::string>& arguments) {
  checkSchedulerWords(options.schedulerWords, arguments);
  const FarmFolder folder = farmFolder(options.folder);
  FarmJob job = readFarmJob(folder);
  const std::vector<double> frames = parseFrames(job.frames).numbers();
  const std::vector<double> left = framesLeft(folder, frames);
  if (left.empty()) {
    std::cout << "all " << frames.size() << " frames are done; this makes the report of them:\n";
    for (const std::filesystem::path& report : job.reports) {
      std::cout << "vtlcmd report " << shellQuoted(fileText(folder.journals())) << "/*.journal -o "
                << shellQuoted(fileText(report)) << '\n';
    }
    return ExitCode::success;
  }
  if (!options.dryRun) refuseWhileRunning(folder);
  refuseChanges(job);
  // Of an option that is there twice the scheduler takes the later one.
  job.schedulerWords.insert(job.schedulerWords.end(), options.schedulerWords.begin(),
                            options.schedulerWords.end());
  const std::vector<std::string> chunks = chunksFor(job, left, mostTasks(options.dryRun));
  if (options.dryRun) {
    printTasks(folder, job, folder.submissions() + 1, chunks);
    return ExitCode::success;
  }
  const std::size_t submission = submit(folder, job, chunks);
  return options.wait ? waitForReport(folder, submission, frames.size()) : ExitCode::success;
}

}  // namespace

void addResubmitCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<ResubmitOptions>();
  CLI::App* command =
      app.add_subcommand("resubmit", "Run the frames again that a farm lost or that failed");
  command->footer(resubmitFooter);
  command->add_option("FOLDER", options->folder, "Folder that 'vtlcmd submit' made")
      ->required()
      ->type_name("");
  addSubmissionOptions(*command, options->dryRun, options->wait);
  addSchedulerWords(*command, options->schedulerWords);
  command->callback([options, &state] {
    try {
      state.exitCode = resubmit(*options, state.arguments);
    } catch (const SchedulerError& error) {
      state.exitCode = tellOf(error);
    } catch (const std::system_error& error) {
      throw UsageError(options->folder + " can't be written: " + reasonOf(error));
    }
  });
}

}  // namespace vtlcmd::runner

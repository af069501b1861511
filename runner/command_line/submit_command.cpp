#include <CLI/App.hpp>
#include <iostream>
#include <memory>
#include <system_error>

#include "command_line/commands.h"
#include "command_line/farm_jobs.h"
#include "command_line/job_frames.h"
#include "command_line/option_values.h"
#include "command_line/submit_options.h"
#include "command_line/usage_error.h"
#include "farm/input_copies.h"
#include "platform/process.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

constexpr const char* submitFooter = R"(Examples:
  vtlcmd submit scatter.json -f 1-1000 --chunk 50 --to /farm/a -s count=1000
  vtlcmd submit scatter.json -f 1-1000 --to /farm/b --wait -- --mem=4G
  vtlcmd status /farm/a
  vtlcmd resubmit /farm/a

Each task runs in the folder in which this command is given, or in its copy.
)";

FarmFolder newFolder(const std::string& name) {
  if (name.empty()) throw UsageError("--to wants the name of a folder, not ''");
  FarmFolder folder(fs::absolute(filePath(name)).lexically_normal());
  const auto refuse = [&](const std::string& reason) {
    throw UsageError("--to: " + inQuotes(name) + " " + reason);
  };
  if (holdsFarmJob(folder)) refuse("holds a job already: 'vtlcmd resubmit' goes on with it");
  std::error_code error;
  const fs::file_status status = fs::status(folder.path(), error);
  if (fs::exists(status) && !fs::is_directory(status)) refuse("is no folder");
  if (fs::exists(status) && !fs::is_empty(folder.path(), error)) refuse("isn't empty");
  return folder;
}

FarmJob jobFrom(const SubmitOptions& options, const LoadedRun& loaded, const FarmFolder& folder) {
  FarmJob job;
  job.program = ownFile();
  job.workingFolder = options.copy ? folder.copyOf(fs::current_path()) : fs::current_path();
  job.graph = options.run.graph;
  job.runWords = taskWords(options);
  job.frames = options.run.frames;
  job.chunkSize = wantedChunkSize(options, loaded);
  job.reports = reportFiles(options, folder);
  if (options.run.noTimes) job.reportWords.emplace_back("--no-times");
  job.schedulerWords = options.schedulerWords;
  job.key = keyOf(loaded, options.run);
  return job;
}

/// Makes the folder with all in it but the submission.
void makeFolder(const SubmitOptions& options, const LoadedRun& loaded, const FarmFolder& folder,
                const FarmJob& job) {
  for (const fs::path& made : {folder.journals(), folder.logs(), folder.path() / "submissions"})
    fs::create_directories(made);
  if (options.copy) {
    std::vector<fs::path> files = inputFiles(options);
    files.insert(files.end(), loaded.settings.filesRead.begin(), loaded.settings.filesRead.end());
    for (const fs::path& file : copyInputs(folder, files))
      std::cerr << "vtlcmd: " << fileText(file) << " isn't copied: its name is absolute\n";
  }
  writeFarmJob(folder, job);
}

/// Leaves a folder that was empty, or not there, as it was.
void removeContent(const FarmFolder& folder, bool wasThere) noexcept {
  std::error_code ignored;
  if (!wasThere) {
    fs::remove_all(folder.path(), ignored);
    return;
  }
  for (const fs::directory_entry& entry : fs::directory_iterator(folder.path(), ignored))
    fs::remove_all(entry.path(), ignored);
}

ExitCode submitGraph(SubmitOptions& options, const std::vector<std::string>& arguments) {
  checkSubmitOptions(options, arguments);
  const FarmFolder folder = newFolder(options.folder);
  options.run.read.apply();
  if (options.copy) options.run.graph = relativeName(options.run.graph);
  const LoadedRun loaded = loadRun(options.run, arguments);
  refuseRepeated("--frames", loaded.settings.frames, options.run.frames);
  const std::vector<double> frames = loaded.settings.frames.numbers();
  const std::optional<std::size_t> most = mostTasks(options.dryRun);
  const FarmJob job = jobFrom(options, loaded, folder);
  const std::vector<std::string> chunks = chunksFor(job, frames, most);
  if (options.dryRun) {
    printTasks(folder, job, 1, chunks);
    return ExitCode::success;
  }
  const bool wasThere = fs::exists(folder.path());
  try {
    makeFolder(options, loaded, folder, job);
    submit(folder, job, chunks);
  } catch (const std::system_error& error) {
    removeContent(folder, wasThere);
    throw UsageError("--to: " + inQuotes(options.folder) + " can't be written: " + reasonOf(error));
  } catch (const SchedulerError&) {
    removeContent(folder, wasThere);
    throw;
  }
  return options.wait ? waitForReport(folder, 1, frames.size()) : ExitCode::success;
}

}  // namespace

void addSubmitCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<SubmitOptions>();
  CLI::App* command =
      app.add_subcommand("submit", "Run the frames of a graph on a farm, by its scheduler Slurm");
  command->footer(submitFooter);
  addSubmitOptions(*command, *options);
  command->callback([options, &state] {
    try {
      state.exitCode = submitGraph(*options, state.arguments);
    } catch (const SchedulerError& error) {
      state.exitCode = tellOf(error);
    }
  });
}

}  // namespace vtlcmd::runner

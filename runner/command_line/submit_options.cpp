#include "command_line/submit_options.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <span>

#include "command_line/option_values.h"
#include "command_line/output_targets.h"
#include "command_line/scheduler_words.h"
#include "command_line/usage_error.h"
#include "farm/chunks.h"
#include "farm/input_copies.h"
#include "graph/graph_file.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/spelled_number.h"

namespace vtlcmd::runner {
namespace {

/// Of `run`, those that say what only the folder's own files are for.
constexpr std::array leftOut{"--job-frames", "--journal",  "--restart",
                             "--resume",     "--progress", "--no-progress"};

/// Those that are the whole job's, not a task's.
constexpr std::array ofTheJob{"frames", "report", "no-times"};

template <typename T>
T parseAboveZero(const std::string& option, const std::string& what, const std::string& text) {
  const std::optional<T> number = spelledNumber<T>(text);
  if (number && *number > T{}) return *number;
  throw UsageError(option + " takes " + what + " above zero, not " + inQuotes(text));
}

std::optional<std::size_t> parseChunk(const SubmitOptions& options) {
  if (!options.chunk) return std::nullopt;
  return parseAboveZero<std::size_t>("--chunk", "a number of frames", *options.chunk);
}

double parseChunkSeconds(const SubmitOptions& options) {
  return parseAboveZero<double>("--chunk-seconds", "a number of seconds", options.chunkSeconds);
}

std::string nameOf(const CLI::Option& option) { return option.get_lnames().front(); }

/// Whether the option's values are files that are read, behind a port's name or alone.
bool namesInput(const CLI::Option& option) {
  return nameOf(option) == "set-file" || nameOf(option) == "plugin";
}

/// Where the file's name begins in a value of such an option, or of one that is written.
std::size_t filePlace(const CLI::Option& option, const std::string& value) {
  return nameOf(option) == "plugin" ? 0 : value.find('=') + 1;
}

std::string absoluteName(const std::string& file) {
  return fileText(std::filesystem::absolute(filePath(file)));
}

/// The value for tasks that run in the copy of this folder: a file that is read has the name that
/// leads to its copy, one that is written stays where it is.
std::string valueForCopy(const CLI::Option& option, const std::string& value) {
  const std::size_t place = filePlace(option, value);
  if (namesInput(option)) return value.substr(0, place) + relativeName(value.substr(place));
  if (nameOf(option) == "save") return value.substr(0, place) + absoluteName(value.substr(place));
  return value;
}

}  // namespace

void addSubmitOptions(CLI::App& command, SubmitOptions& options) {
  addRunOptions(command, options.run);
  for (const char* name : leftOut) command.remove_option(command.get_option(name));
  command.get_option("GRAPH")->description("Graph file");
  command.get_option("--report")
      ->description(
          "Write a report of the whole run: a page for people to a file named *.html, a table "
          "to *.csv, else a JSON document; without it report.json in the folder");
  command.get_option("--set-file")
      ->description("Text for a port from a file, without its last line end");
  for (const CLI::Option* option : command.get_options()) options.runOptions.push_back(option);
  command
      .add_option("--to", options.folder,
                  "New folder for all that the job leaves, where every machine of the farm sees it")
      ->required()
      ->type_name("FOLDER");
  CLI::Option* chunk =
      command
          .add_option("--chunk", options.chunk,
                      "Frames of a task; more where the cluster's MaxArraySize asks for it")
          ->type_name("NUMBER");
  command
      .add_option("--chunk-seconds", options.chunkSeconds,
                  "Without --chunk: how long a task takes, judged by a trial of the first frame")
      ->type_name("SECONDS")
      ->capture_default_str()
      ->excludes(chunk);
  command.add_flag("--copy", options.copy,
                   "Copy the graph and the files that it and the options name into the folder; "
                   "absolute names in graph and texts stay what they are");
  addSubmissionOptions(command, options.dryRun, options.wait);
  addSchedulerWords(command, options.schedulerWords);
}

void addSubmissionOptions(CLI::App& command, bool& dryRun, bool& wait) {
  CLI::Option* dry =
      command.add_flag("--dry-run", dryRun, "Print the script of the tasks and submit nothing");
  command
      .add_flag("--wait", wait,
                "Stay until the report is there, and exit with the code of the whole run")
      ->excludes(dry);
}

void checkSubmitOptions(const SubmitOptions& options, const std::vector<std::string>& arguments) {
  checkSchedulerWords(options.schedulerWords, arguments);
  parseChunk(options);
  parseChunkSeconds(options);
  const auto refuse = [](const std::string& what) {
    throw UsageError(what + " can't be the standard input, which no task reads");
  };
  if (options.run.graph == standardInput) refuse("the graph");
  for (const std::string& file : options.run.files) {
    if (file.ends_with("=" + std::string(standardInput))) refuse("the text of " + inQuotes(file));
  }
  const std::vector<std::string>& reports = options.run.reports;
  if (std::find(reports.begin(), reports.end(), OutputTargets::standardOutput) != reports.end())
    throw UsageError("--report can't be the standard output, which no task has");
  if (options.folder.find('\n') != std::string::npos)
    throw UsageError("--to can't have a line end in its name");
}

std::size_t wantedChunkSize(const SubmitOptions& options, const LoadedRun& loaded) {
  if (const std::optional<std::size_t> chunk = parseChunk(options)) return *chunk;
  VtlCmdLogger logger(options.run.report.printLimit());
  Session session(loaded.graph, loaded.plugIn->translation(), loaded.settings, logger);
  const FrameRecord trial = session.run(0);
  if (!trial.succeeded())
    std::cerr << "vtlcmd: the trial of frame " << trial.frameText << " failed\n";
  return chunkSizeFor(parseChunkSeconds(options), trial.seconds, loaded.settings.frames.size());
}

std::vector<std::string> taskWords(const SubmitOptions& options) {
  std::vector<std::string> words;
  for (const CLI::Option* option : options.runOptions) {
    if (option->count() == 0 || option->get_positional() || isOneOf(nameOf(*option), ofTheJob))
      continue;
    const std::string name = "--" + nameOf(*option);
    if (option->get_items_expected_max() == 0) {
      words.push_back(name);
      continue;
    }
    for (const std::string& value : option->results())
      words.push_back(name + "=" + (options.copy ? valueForCopy(*option, value) : value));
  }
  return words;
}

std::vector<std::filesystem::path> inputFiles(const SubmitOptions& options) {
  std::vector<std::filesystem::path> files{filePath(relativeName(options.run.graph))};
  for (const CLI::Option* option : options.runOptions) {
    if (option->get_positional() || !namesInput(*option)) continue;
    for (const std::string& value : option->results())
      files.push_back(filePath(relativeName(value.substr(filePlace(*option, value)))));
  }
  return files;
}

std::vector<std::filesystem::path> reportFiles(const SubmitOptions& options,
                                               const FarmFolder& folder) {
  std::vector<std::filesystem::path> files;
  for (const std::string& report : options.run.reports)
    files.push_back(filePath(absoluteName(report)).lexically_normal());
  if (files.empty()) files.push_back(folder.path() / "report.json");
  return files;
}

}  // namespace vtlcmd::runner

#include "farm/task_scripts.h"

#include <filesystem>
#include <string_view>

#include "text/path_text.h"
#include "text/shell_quoting.h"

namespace vtlcmd::runner {
namespace {

/// A name of a job that no list of jobs stumbles over.
std::string jobName(const FarmJob& job) {
  std::string name = "vtlcmd-" + fileText(filePath(job.graph).stem());
  for (char& character : name) {
    constexpr std::string_view allowed =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-.";
    if (allowed.find(character) == std::string_view::npos) character = '_';
  }
  return name;
}

/// A file's name on a line for the scheduler: it reads quotes and backslashes like a shell, and
/// patterns that begin with a percent sign.
std::string schedulerName(const std::filesystem::path& folder, const std::string& pattern) {
  std::string text = "\"";
  for (const char character : fileText(folder)) {
    if (character == '"' || character == '\\') text += '\\';
    if (character == '%') text += '%';
    text += character;
  }
  return text + "/" + pattern + "\"";
}

std::string assignment(const std::string& name, const std::string& value) {
  return name + "=" + shellQuoted(value) + "\n";
}

/// Each journal has one writer.
std::string journalChoice(const std::string& submission) {
  return R"(# A task that is started again goes on in a copy of its last journal: where it ran before,
# somebody may still write to that.
task=$folder/journals/)" +
         submission + R"(-$SLURM_ARRAY_TASK_ID
journal=$task.journal
last=
restart=0
while [ "$restart" -lt "${SLURM_RESTART_COUNT:-0}" ]; do
  [ -e "$journal" ] && last=$journal
  restart=$((restart + 1))
  journal=$task-$restart.journal
done
[ -z "$last" ] || cp "$last" "$journal"

)";
}

}  // namespace

TaskScripts::TaskScripts(const FarmFolder& folder, const FarmJob& job, std::size_t submission)
    : folder_(folder), job_(job), submission_(std::to_string(submission)) {}

std::string TaskScripts::head(const std::string& nameEnding, const std::string& logName) const {
  return "#!/bin/sh\n#SBATCH --job-name=" + jobName(job_) + nameEnding +
         "\n#SBATCH --output=" + schedulerName(folder_.logs(), submission_ + "-" + logName) +
         "\n#SBATCH --open-mode=append\n";
}

std::string TaskScripts::tasks(std::size_t count) const {
  std::string text = head("", "%a.log");
  text += "#SBATCH --array=1-" + std::to_string(count) + "\n\n";
  text += "set -eu\n";
  text += assignment("folder", fileText(folder_.path()));
  text += "# Line by line, the frames of the tasks.\n";
  text += R"(frames=$(sed -n "${SLURM_ARRAY_TASK_ID}p" "$folder/submissions/)" + submission_ +
          "/frames\")\n";
  text += journalChoice(submission_);
  text += "cd " + shellQuoted(fileText(job_.workingFolder)) + "\n";
  text += "exec " + shellQuoted(fileText(job_.program)) + " run " + shellQuoted(job_.graph);
  for (const std::string& word : job_.runWords) text += " \\\n  " + shellQuoted(word);
  text += " \\\n  \"--frames=$frames\" " + shellQuoted("--job-frames=" + job_.frames) +
          " \\\n  \"--journal=$journal\" --resume\n";
  return text;
}

std::string TaskScripts::report() const {
  std::string text = head("-report", "report.log");
  text += "\nset -u\n";
  text += assignment("folder", fileText(folder_.path()));
  text += "code=0\ncd \"$folder/journals\"\n";
  for (const std::filesystem::path& report : job_.reports) {
    text += shellQuoted(fileText(job_.program)) + " report *.journal -o " +
            shellQuoted(fileText(report));
    for (const std::string& word : job_.reportWords) text += " " + shellQuoted(word);
    text += " || code=$?\n";
  }
  text += R"(echo "$code" >"$folder/submissions/)" + submission_ + "/reported\"\nexit \"$code\"\n";
  return text;
}

}  // namespace vtlcmd::runner

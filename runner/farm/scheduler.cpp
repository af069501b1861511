#include "farm/scheduler.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <sstream>
#include <system_error>

#include "platform/child_process.h"
#include "text/control_characters.h"

namespace vtlcmd::runner {
namespace {

/// What a shell gives back for a command that isn't there.
constexpr int commandNotFound = 127;

[[noreturn]] void failAbsent(const std::string& command) {
  throw SchedulerError(
      command + " isn't here: jobs go through Slurm's commands (Debian's package slurm-client)",
      true);
}

[[noreturn]] void fail(const std::string& command, std::string output) {
  while (output.ends_with('\n')) output.pop_back();
  throw SchedulerError(command + " failed" + (output.empty() ? "" : ": " + output), false);
}

std::string outputOf(ChildProcess& process) {
  std::string output;
  std::array<unsigned char, 4096> block{};
  // The command has a time limit of its own.
  const auto noDeadline = std::chrono::steady_clock::now() + std::chrono::hours(24);
  while (const auto count = process.read(block, noDeadline)) {
    if (*count == 0) break;
    output.append(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(*count));
  }
  return output;
}

/// What a command printed to both its streams.
std::string run(const std::vector<std::string>& words) {
  const std::string& command = words.front();
  // The shell finds the command, and its complaints are wanted too, which would lead nowhere.
  std::vector<std::string> shell{"-c", R"(exec "$0" "$@" 2>&1)"};
  shell.insert(shell.end(), words.begin(), words.end());
  try {
    ChildProcess process("/bin/sh", shell);
    std::string output = outputOf(process);
    const ProcessEnd end = process.wait();
    if (end.kind == ProcessEnd::Kind::exited && end.exitCode == commandNotFound)
      failAbsent(command);
    if (end.kind != ProcessEnd::Kind::exited || end.exitCode != 0) fail(command, output);
    return output;
  } catch (const std::system_error&) {
    failAbsent(command);
  }
}

/// "123" in a line "123" or "123;cluster", as --parsable has it; empty for any other line.
std::string jobNumberIn(const std::string& line) {
  const std::string number = line.substr(0, line.find(';'));
  const bool isNumber =
      !number.empty() && number.find_first_not_of("0123456789") == std::string::npos;
  return isNumber ? number : "";
}

}  // namespace

std::size_t mostArrayTasks() {
  std::istringstream lines(run({"scontrol", "show", "config"}));
  constexpr std::string_view name = "MaxArraySize";
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(name)) continue;
    const std::size_t place = line.find_first_of("0123456789");
    std::size_t size = 0;
    if (place != std::string::npos)
      std::from_chars(line.data() + place, line.data() + line.size(), size);
    // The number is above the highest one that a task may have.
    if (size > 1) return size - 1;
    throw SchedulerError("the cluster allows no arrays of tasks (MaxArraySize)", false);
  }
  fail("scontrol", "it told no MaxArraySize");
}

std::vector<std::string> submitWords(const std::vector<std::string>& options,
                                     const std::string& script, const std::string& predecessor) {
  std::vector<std::string> words{"sbatch", "--parsable"};
  if (!predecessor.empty()) words.push_back("--dependency=afterany:" + predecessor);
  words.insert(words.end(), options.begin(), options.end());
  words.push_back(script);
  return words;
}

std::string submitJob(const std::vector<std::string>& words) {
  const std::string output = run(words);
  std::istringstream lines(output);
  std::string job;
  for (std::string line; std::getline(lines, line);) {
    if (const std::string number = jobNumberIn(line); !number.empty()) {
      job = number;
    } else {
      std::cerr << withoutControls(line) << '\n';
    }
  }
  if (job.empty()) fail(words.front(), "it told no number of a job");
  return job;
}

std::vector<std::string> jobsNotEnded(const std::vector<std::string>& jobs) {
  // Asked for by number, a job that the scheduler has forgotten would be an error.
  std::istringstream numbers(run({"squeue", "--noheader", "--me", "--format=%F"}));
  std::vector<std::string> found;
  for (std::string number; numbers >> number;) {
    const bool isWanted = std::find(jobs.begin(), jobs.end(), number) != jobs.end();
    if (isWanted && std::find(found.begin(), found.end(), number) == found.end())
      found.push_back(number);
  }
  return found;
}

void cancelJob(const std::string& job) { run({"scancel", job}); }

}  // namespace vtlcmd::runner

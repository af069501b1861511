#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace vtlcmd::runner {

/// Adds the words behind `--` to a command: options for the scheduler. They must outlive the parse.
void addSchedulerWords(CLI::App& command, std::vector<std::string>& words);

/// Throws UsageError for words that don't stand behind `--` in the whole command line, for others
/// that do, and for options that aren't left to the user.
void checkSchedulerWords(const std::vector<std::string>& words,
                         const std::vector<std::string>& arguments);

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "execution/exit_code.h"
#include "report/journal_survey.h"

namespace vtlcmd::runner {

/// A file of a run that can't be written, in words for the user.
class OutputError : public std::runtime_error {
 public:
  /// `what` is what can't be done, like "the report can't be written to x".
  OutputError(const std::string& what, const std::system_error& error);
  explicit OutputError(const std::string& what) : std::runtime_error(what), isTransient_(false) {}

  /// Whether there may be room at another time.
  bool isTransient() const noexcept { return isTransient_; }

 private:
  bool isTransient_;
};

/// What the program gives back when output failed too: a failure of the run itself counts more.
ExitCode worst(ExitCode run, const OutputError& error);

/// The reports of a run that a user asks for.
class RunReports {
 public:
  /// `targets` as `--report` has them.
  RunReports(std::vector<std::string> targets, bool withTimes)
      : targets_(std::move(targets)), withTimes_(withTimes) {}

  bool empty() const noexcept { return targets_.empty(); }
  bool useStandardOutput() const;

  /// Where the journal that the reports are made of stays until they are there: beside the first
  /// one. Nothing when no report goes to a file that can have something beside it.
  std::optional<std::filesystem::path> journalPlace() const;

  /// Takes in a file that the run has read: no report is written over it.
  void keep(const std::filesystem::path& file);

  /// Writes all of them. When one can't be written the others are all the same, then throws
  /// OutputError.
  void write(Journals journal) const;

 private:
  void write(const std::string& target, Journals& journal, const JournalSurvey& survey) const;

  std::vector<std::string> targets_;
  /// Of the targets, those that the run has read.
  std::set<std::string> kept_;
  bool withTimes_;
};

}  // namespace vtlcmd::runner

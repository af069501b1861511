#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

namespace vtlcmd::runner {

/// A journal that a report is made of. The stream can be read more than once.
struct JournalSource {
  std::istream& lines;
  /// What errors call it.
  std::string name;
};

/// What a journal tells in all.
struct JournalSurvey {
  nlohmann::ordered_json run;
  nlohmann::ordered_json runTimes;
  /// Null when the run was cut off.
  nlohmann::ordered_json end;
  nlohmann::ordered_json endTimes;
  std::uint64_t frames = 0;
  std::uint64_t failed = 0;
  std::uint64_t graphErrors = 0;
  std::uint64_t graphWarnings = 0;
  /// Critical messages, errors and warnings of whatever source, by the level's name.
  std::map<std::string, std::uint64_t> problems;

  /// Frames of the whole job; `run` names these too.
  std::uint64_t frameCount() const;
  std::uint64_t missing() const { return frameCount() - frames; }
  /// That of the end; "cut off" without one.
  std::string outcome() const;
};

/// Reads a journal from one end to the other. Throws JournalError.
JournalSurvey surveyJournal(const JournalSource& source);

}  // namespace vtlcmd::runner

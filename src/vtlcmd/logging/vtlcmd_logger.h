#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/logging/run_report.h"

namespace vtlcmd {

/// Who speaks. All 16 bits are stored; any number but 0 counts as the graph system's side in a
/// prefix, and only 1 is counted.
using LogSource = std::uint16_t;
inline constexpr LogSource vtlcmdSource = 0;
inline constexpr LogSource vantrelSource = 1;

using LogLevel = std::uint16_t;
inline constexpr LogLevel levelNone = 0;
inline constexpr LogLevel levelCritical = 1;
inline constexpr LogLevel levelError = 2;
inline constexpr LogLevel levelWarning = 3;
inline constexpr LogLevel levelProgress = 4;
inline constexpr LogLevel levelVerbose = 5;
inline constexpr LogLevel levelDebug = 6;

struct LogMessage {
  LogSource source;
  LogLevel level;
  /// Without prefix and without a closing line end.
  std::string text;
  /// The current indices at the moment of adding.
  std::uint64_t groupIndex;
  std::uint64_t entryIndex;
};

/// Collects what a run wants to tell the user; it never prints. Shared source: the runner creates
/// and owns the one object, the plug-in adds messages and output reports to it.
///
/// No lock and no thread: calls on one logger must not overlap. Records live in vectors, so a
/// reference to one is valid until the next append to the same vector. Fields up to `errorCount`
/// have offsets that both sides rely on. What is passed in may be a part of the report itself.
class VtlCmdLogger {
 public:
  /// The index of no group and no entry. It is out of range like any stale index.
  static constexpr std::uint64_t noCurrent = ~std::uint64_t{0};

  static constexpr std::array<const char*, 7> levelNames{"none",     "critical", "error", "warning",
                                                         "progress", "verbose",  "debug"};

  explicit VtlCmdLogger(std::uint32_t limit) : printLimit(limit) {}
  VtlCmdLogger(const VtlCmdLogger&) = delete;
  VtlCmdLogger& operator=(const VtlCmdLogger&) = delete;
  virtual ~VtlCmdLogger();

  /// Stores a message whatever its level; counts it while counting is on and its source is 1.
  void addMessage(LogSource source, LogLevel level, const std::string& text);

  /// Two pieces of ten characters, source and level; empty for a level outside 1 to 6.
  static std::string makeMessagePrefix(LogSource source, LogLevel level);

  /// Replaces what the current entry knows of an output port. All three are terminated strings.
  void reportOutputValue(const char* name, const char* typeName, const char* valueText);
  void reportOutputSuppressed(const char* name, const char* typeName);

  /// Two codes of the graph system, which must not be merged: of the 16-bit one 1 is an error and
  /// 2 a warning, of the 32-bit one 0 and 1; anything else is verbose.
  void addVantrelMessage(std::uint16_t severity, const std::string& text);
  void addVantrelMessage(std::int32_t severity, const std::string& text);

  /// Whether a verbosity level shows a severity counted from 0, critical, to 5, debug.
  static bool levelAdmits(std::int16_t level, std::uint32_t severityIndex) noexcept;

  /// Back to the initial state, but for `messages` and `printLimit`, which stay.
  void reset();

  void addTexts(const Orvel::Array<Orvel::String>& array);

  void beginGroup(const std::string& name);
  void endGroup() noexcept;
  /// Without a current group the description goes to the fallback entry.
  void beginEntry(const RunDescription& description);
  void endEntry() noexcept;

  /// The fallback entry when none is current.
  ReportEntry& currentEntry() noexcept;
  /// Null when none is current.
  ReportGroup* currentGroup() noexcept;
  /// Where a message with these indices belongs: unlike a report, one without an entry stays with
  /// its group.
  MessagesBySource& messagesFor(std::uint64_t groupIndex, std::uint64_t entryIndex) noexcept;

  void setInputsSet(bool value) noexcept { currentEntry().inputsSet = value; }
  void setExecuted(bool value) noexcept { currentEntry().executed = value; }
  void setOutputsReported(bool value) noexcept { currentEntry().outputsReported = value; }
  void setWithoutErrors(bool value) noexcept { currentEntry().withoutErrors = value; }
  void setInterrupted(bool value) noexcept { currentEntry().interrupted = value; }
  /// Nothing happens when no group is current.
  void setLoaded(bool value) noexcept;
  void setFinished(bool value) noexcept;

  /// 0 suppresses all value text; any other number caps the elements that one array level lists.
  std::uint32_t printLimit;
  bool countingEnabled = false;
  std::uint64_t warningCount = 0;
  std::uint64_t errorCount = 0;
  std::vector<std::string> texts;
  std::vector<LogMessage> messages;
  ReportEntry fallbackEntry;
  std::vector<ReportGroup> groups;
  std::uint64_t currentGroupIndex = noCurrent;
  std::uint64_t currentEntryIndex = noCurrent;
};

/// Counts source 1 while it lives. Guards do not nest: the inner one's end switches counting off.
class CountingScope {
 public:
  explicit CountingScope(VtlCmdLogger& logger) noexcept : logger_(logger) {
    logger_.countingEnabled = true;
  }
  CountingScope(const CountingScope&) = delete;
  CountingScope& operator=(const CountingScope&) = delete;
  ~CountingScope() { logger_.countingEnabled = false; }

 private:
  VtlCmdLogger& logger_;
};

class GroupScope {
 public:
  GroupScope(VtlCmdLogger& logger, const std::string& name) : logger_(logger) {
    logger_.beginGroup(name);
  }
  GroupScope(const GroupScope&) = delete;
  GroupScope& operator=(const GroupScope&) = delete;
  ~GroupScope() { logger_.endGroup(); }

 private:
  VtlCmdLogger& logger_;
};

class EntryScope {
 public:
  EntryScope(VtlCmdLogger& logger, const RunDescription& description) : logger_(logger) {
    logger_.beginEntry(description);
  }
  EntryScope(const EntryScope&) = delete;
  EntryScope& operator=(const EntryScope&) = delete;
  ~EntryScope() { logger_.endEntry(); }

 private:
  VtlCmdLogger& logger_;
};

}  // namespace vtlcmd

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

#include "execution/progress.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Where text for people goes. Control characters that it holds don't reach a terminal.
struct TextSink {
  std::ostream& stream;
  bool isTerminal = false;
};

/// Prints what a logger collects: critical messages, errors and warnings to one sink, the rest to
/// the other, each behind its prefix.
class MessagePrinter {
 public:
  struct Sinks {
    TextSink report;
    TextSink problems;
    /// Whether problems are coloured with terminal codes.
    bool colored = false;
  };

  /// `verbosity` is a level: messages above it are not printed. Logger and progress, which is taken
  /// away while something else is printed on a terminal, must outlive this.
  MessagePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, Sinks sinks,
                 Progress& progress);

  /// Prints the messages since the last call and flushes.
  void printNew();

  /// Prints a message, if the verbosity admits it. What is printed comes out with `flush` at the
  /// latest: neighbouring lines of one sink go out in one write.
  void print(const LogMessage& message);
  /// Prints a line of the program's own where problems go, or where the report goes.
  void printHead(std::string_view text, bool isProblem);
  void flush();

 private:
  const TextSink& sinkOf(bool isProblem) const {
    return isProblem ? sinks_.problems : sinks_.report;
  }
  /// `color` is a terminal's code, or empty.
  void printLine(std::string_view prefix, std::string_view text, bool isProblem,
                 std::string_view color);
  const std::string& prefixOf(const LogMessage& message) const {
    return prefixes_[message.source == vtlcmdSource ? 0 : 1][message.level];
  }
  void writePending();

  /// By side and level.
  std::array<std::array<std::string, VtlCmdLogger::levelNames.size()>, 2> prefixes_;
  const VtlCmdLogger& logger_;
  std::int16_t verbosity_;
  Sinks sinks_;
  Progress& progress_;
  std::size_t printed_ = 0;
  /// Lines that wait, all for the same sink.
  std::string pending_;
  bool pendingIsProblem_ = false;
};

}  // namespace vtlcmd::runner

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "execution/message_printer.h"

namespace vtlcmd::runner {

/// Prints the messages of frame after frame. Of several frames each has a line with its number
/// before its own lines, on either stream. A problem that comes again in further frames is told at
/// the first one, and the frames are counted in the end.
class FramePrinter {
 public:
  /// Logger and progress must outlive this.
  FramePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, MessagePrinter::Sinks sinks,
               Progress& progress, bool hasSeveralFrames);

  /// `frame` is the frame's number as the user knows it.
  void print(const std::string& frame, const std::vector<LogMessage>& messages);

  /// Closes the run.
  void printCounts();

 private:
  /// Source, level and text of a message.
  using Problem = std::tuple<LogSource, LogLevel, std::string>;

  struct Occurrence {
    std::size_t frames = 0;
    /// By the number of printed frames.
    std::size_t last = 0;
  };

  /// Whether a problem was told at an earlier frame already.
  bool isRepetition(const LogMessage& message);

  std::int16_t verbosity_;
  MessagePrinter printer_;
  bool hasSeveralFrames_;
  std::size_t frames_ = 0;
  std::map<Problem, Occurrence> problems_;
};

}  // namespace vtlcmd::runner

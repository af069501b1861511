#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>

#include "execution/frame_record.h"
#include "execution/message_printer.h"

namespace vtlcmd::runner {

/// Prints the messages of frame after frame. Of several frames each has a line with its number
/// before its own lines, on either stream. What keeps an input from being set is the same in every
/// frame: it is told at the first one, and counted in the end.
class FramePrinter {
 public:
  /// Logger and progress must outlive this.
  FramePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, MessagePrinter::Sinks sinks,
               Progress& progress, bool hasSeveralFrames);

  /// Prints what the logger holds, the messages of this frame.
  void print(const FrameRecord& frame);

  /// Closes the run.
  void printCounts();

 private:
  /// Source, level and text of a message.
  using Problem = std::tuple<LogSource, LogLevel, std::string>;

  bool isRepetition(const LogMessage& message);

  const VtlCmdLogger& logger_;
  std::int16_t verbosity_;
  MessagePrinter printer_;
  bool hasSeveralFrames_;
  /// The frames that each problem with an input was met in.
  std::map<Problem, std::size_t> problems_;
};

}  // namespace vtlcmd::runner

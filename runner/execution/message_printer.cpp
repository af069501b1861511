#include "execution/message_printer.h"

#include <ostream>

#include "text/control_characters.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* red = "\x1b[31m";
constexpr const char* yellow = "\x1b[33m";
constexpr const char* plain = "\x1b[0m";

}  // namespace

MessagePrinter::MessagePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, Sinks sinks,
                               Progress& progress)
    : logger_(logger), verbosity_(verbosity), sinks_(sinks), progress_(progress) {}

void MessagePrinter::printNew() {
  for (; printed_ < logger_.messages.size(); ++printed_) print(logger_.messages[printed_]);
  sinks_.report.stream.flush();
  sinks_.problems.stream.flush();
  progress_.show();
}

void MessagePrinter::print(const LogMessage& message) {
  if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) return;
  const bool isProblem = message.level <= levelWarning;
  const TextSink& sink = isProblem ? sinks_.problems : sinks_.report;
  std::string line = VtlCmdLogger::makeMessagePrefix(message.source, message.level) + message.text;
  if (sink.isTerminal) {
    progress_.hide();
    line = withoutControls(line);
  }
  if (isProblem && sinks_.colored)
    line = (message.level == levelWarning ? yellow : red) + line + plain;
  sink.stream << line << '\n';
}

}  // namespace vtlcmd::runner

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
  flush();
}

void MessagePrinter::print(const LogMessage& message) {
  if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) return;
  const bool isProblem = message.level <= levelWarning;
  const char* color = !isProblem || !sinks_.colored   ? ""
                      : message.level == levelWarning ? yellow
                                                      : red;
  printLine(VtlCmdLogger::makeMessagePrefix(message.source, message.level) + message.text,
            isProblem, color);
}

void MessagePrinter::printLine(const std::string& text, bool isProblem, const char* color) {
  const TextSink& sink = isProblem ? sinks_.problems : sinks_.report;
  if (sink.isTerminal) progress_.hide();
  sink.stream << color << (sink.isTerminal ? withoutControls(text) : text)
              << (*color == '\0' ? "" : plain) << '\n';
}

void MessagePrinter::flush() {
  sinks_.report.stream.flush();
  sinks_.problems.stream.flush();
  progress_.show();
}

}  // namespace vtlcmd::runner

#include "execution/message_printer.h"

#include <ostream>

#include "text/control_characters.h"

namespace vtlcmd::runner {
namespace {

constexpr std::string_view red = "\x1b[31m";
constexpr std::string_view yellow = "\x1b[33m";
constexpr std::string_view plain = "\x1b[0m";

}  // namespace

MessagePrinter::MessagePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, Sinks sinks,
                               Progress& progress)
    : logger_(logger), verbosity_(verbosity), sinks_(sinks), progress_(progress) {
  for (LogLevel level = levelCritical; level <= levelDebug; ++level) {
    prefixes_[0][level] = VtlCmdLogger::makeMessagePrefix(vtlcmdSource, level);
    prefixes_[1][level] = VtlCmdLogger::makeMessagePrefix(vantrelSource, level);
  }
}

void MessagePrinter::printNew() {
  for (; printed_ < logger_.messages.size(); ++printed_) print(logger_.messages[printed_]);
  flush();
}

void MessagePrinter::print(const LogMessage& message) {
  if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) return;
  const bool isProblem = message.level <= levelWarning;
  std::string_view color;
  if (isProblem && sinks_.colored) color = message.level == levelWarning ? yellow : red;
  printLine(prefixOf(message), message.text, isProblem, color);
}

void MessagePrinter::printHead(std::string_view text, bool isProblem) {
  printLine(prefixes_[0][levelProgress], text, isProblem, {});
}

void MessagePrinter::printLine(std::string_view prefix, std::string_view text, bool isProblem,
                               std::string_view color) {
  if (isProblem != pendingIsProblem_) writePending();
  pendingIsProblem_ = isProblem;
  pending_.append(color).append(prefix);
  if (sinkOf(isProblem).isTerminal) {
    pending_ += withoutControls(text);
  } else {
    pending_ += text;
  }
  if (!color.empty()) pending_ += plain;
  pending_ += '\n';
}

void MessagePrinter::flush() {
  writePending();
  progress_.show();
}

void MessagePrinter::writePending() {
  if (pending_.empty()) return;
  const TextSink& sink = sinkOf(pendingIsProblem_);
  // Problems go where progress does, be it a terminal or not.
  if (sink.isTerminal || pendingIsProblem_) progress_.hide();
  sink.stream << pending_ << std::flush;
  pending_.clear();
}

}  // namespace vtlcmd::runner

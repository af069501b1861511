#include "execution/message_printer.h"

#include <ostream>

namespace vtlcmd::runner {
namespace {

constexpr const char* red = "\x1b[31m";
constexpr const char* yellow = "\x1b[33m";
constexpr const char* plain = "\x1b[0m";

}  // namespace

MessagePrinter::MessagePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, Streams streams)
    : logger_(logger), verbosity_(verbosity), streams_(streams) {}

void MessagePrinter::printNew() {
  for (; printed_ < logger_.messages.size(); ++printed_) print(logger_.messages[printed_]);
  streams_.report.flush();
  streams_.problems.flush();
}

void MessagePrinter::print(const LogMessage& message) const {
  if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) return;
  const std::string line =
      VtlCmdLogger::makeMessagePrefix(message.source, message.level) + message.text;
  if (message.level > levelWarning) {
    streams_.report << line << '\n';
  } else if (streams_.colored) {
    streams_.problems << (message.level == levelWarning ? yellow : red) << line << plain << '\n';
  } else {
    streams_.problems << line << '\n';
  }
}

}  // namespace vtlcmd::runner

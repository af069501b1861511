#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Prints what a logger collects: critical messages, errors and warnings to one stream, the rest
/// to the other, each behind its prefix.
class MessagePrinter {
 public:
  struct Streams {
    std::ostream& report;
    std::ostream& problems;
    /// Whether problems are coloured with terminal codes.
    bool colored = false;
  };

  /// `verbosity` is a level: messages above it are not printed. The logger must outlive this.
  MessagePrinter(const VtlCmdLogger& logger, std::int16_t verbosity, Streams streams);

  /// Prints the messages since the last call and flushes.
  void printNew();

 private:
  void print(const LogMessage& message) const;

  const VtlCmdLogger& logger_;
  std::int16_t verbosity_;
  Streams streams_;
  std::size_t printed_ = 0;
};

}  // namespace vtlcmd::runner

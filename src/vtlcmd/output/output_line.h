#pragma once

#include <cstddef>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/text_builder.h"

namespace vtlcmd {

/// The progress line of an output port in the making, which ends in the value's text:
///
///   Output port 'result': (int) 42
///   Output port 'result': (int output suppressed)
///
/// The logger's limit is read once, at the start. Name, type word and logger must outlive the line.
class OutputLine {
 public:
  OutputLine(const Orvel::String& portName, const char* typeWord, VtlCmdLogger& logger);

  /// Whether the limit lets the value be shown; otherwise it isn't to be looked at.
  bool showsValue() const noexcept { return showsValue_; }
  /// What the value's text is appended to.
  TextBuilder& text() noexcept { return text_; }

  /// Leaves the value's record in the run report and then the line as a message. Until then nothing
  /// is recorded.
  void report();

 private:
  const char* portName_;
  const char* typeWord_;
  VtlCmdLogger& logger_;
  bool showsValue_;
  TextBuilder text_;
  /// Where in the text the value begins.
  std::size_t valueStart_;
};

}  // namespace vtlcmd

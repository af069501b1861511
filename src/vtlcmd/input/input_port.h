#pragma once

#include <string>

#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/text_builder.h"

namespace vtlcmd {

struct InputPort;

/// Starts every message about a text that was given: "Input port 'count' (int): ". Made into text
/// by the messages alone, as most texts need none.
struct PortPrefix {
  const InputPort& port;

  explicit operator std::string() const;
};

/// What the messages about an input or Job port call it. Both texts are terminated and not owned.
struct InputPort {
  bool isJobPort;
  const char* name;
  const char* typeName;

  PortPrefix prefix() const { return {*this}; }
  /// Says that no text was given, at level verbose.
  void addNoValueLine(VtlCmdLogger& logger) const;
  /// "Set input port 'count': (int) ", for the value's text to follow.
  TextBuilder beginValueLine() const;
};

}  // namespace vtlcmd

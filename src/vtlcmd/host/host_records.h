#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_string.h"

/// @file
/// What the host hands in with every call. The host owns all of it and keeps it alive for the
/// length of the call; the plug-in keeps no pointer into it. Field order is the border.
///
/// Conditions on the operations of the border are written in brackets:
/// - [any thread]: callable from any thread, also at the same time as any other operation
/// - [logger's thread]: not at the same time as another call that reaches the same logger
/// - [no throw]: an exception ends the process rather than crossing into the host
/// - [may throw]: what the allocator and the closed libraries throw passes through

namespace vtlcmd {

class PortValueMap;
class VtlCmdLogger;

/// A file system path: wide characters with their size, the same shape on every platform.
using HostPath = std::wstring;

/// One record of the runner, shared by all ports of a run.
struct RunContext {
  /// Texts for plain input ports, and for Job ports. Not null; may be empty.
  const PortValueMap* inputValues;
  const PortValueMap* jobValues;
  /// Seconds.
  double time;
  /// Frame number; it may have a fraction.
  double frame;
  /// Seconds a frame.
  double frameLength;
  HostPath sceneFile;
  /// Empty when there is none.
  HostPath secondaryPath;
  /// Where all messages go. Not null.
  VtlCmdLogger* logger;
};

struct InputValueData {
  /// The host's; never read here.
  void* hostWord;
  /// Not null.
  const Orvel::String* portName;
  bool isJobPort;
  /// For a port without text. May be empty.
  Any defaultValue;
  /// Not null.
  RunContext* context;
};

struct OutputValueData {
  /// The host's; never read here.
  void* hostWord;
  /// Not null.
  const Orvel::String* portName;
  /// Not null.
  RunContext* context;
};

static_assert(offsetof(RunContext, inputValues) == 0 && offsetof(RunContext, jobValues) == 8);
static_assert(offsetof(RunContext, time) == 16 && offsetof(RunContext, frame) == 24 &&
              offsetof(RunContext, frameLength) == 32);
static_assert(sizeof(HostPath) == 32);
static_assert(offsetof(RunContext, sceneFile) == 40 && offsetof(RunContext, secondaryPath) == 72);
static_assert(offsetof(RunContext, logger) == 104 && sizeof(RunContext) == 112);

static_assert(offsetof(InputValueData, hostWord) == 0 && offsetof(InputValueData, portName) == 8 &&
              offsetof(InputValueData, isJobPort) == 16 &&
              offsetof(InputValueData, defaultValue) == 24 &&
              offsetof(InputValueData, context) == 56 && sizeof(InputValueData) == 64);
static_assert(offsetof(OutputValueData, portName) == 8 &&
              offsetof(OutputValueData, context) == 16 && sizeof(OutputValueData) == 24);

}  // namespace vtlcmd

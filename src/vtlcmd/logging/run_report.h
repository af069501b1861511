#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/host/string_order.h"

/// The structured side of the logger: groups of entries, with what was reported while an entry was
/// current. Shared source of the runner and the plug-in. The plug-in writes `outputs`, nothing
/// else; all other fields are the runner's.

namespace vtlcmd {

/// Source, then level, then texts in order of insertion.
using MessagesBySource = std::map<std::uint16_t, std::map<std::uint16_t, std::vector<std::string>>>;

struct OutputReport {
  std::string typeName;
  /// Empty when the value is not shown.
  std::string valueText;
  bool valueShown = false;
};

/// What the runner tells of a run when it begins an entry.
struct RunDescription {
  std::string graphName;
  std::string graphFile;
  std::vector<std::string> arguments;
  std::uint32_t frameIndex = 0;
  std::uint32_t frameCount = 0;
  std::uint64_t inputCount = 0;
  std::uint64_t outputCount = 0;
  PortValueMap inputValues;
  PortValueMap jobValues;
  std::map<Orvel::String, Orvel::String, StringOrder> properties;
  std::uint32_t printLimit = 0;
  std::string frameText;
  std::uint32_t verbosity = 0;
  std::uint8_t throughAny = 0;
  HostPath sceneFile;
  HostPath secondaryPath;
};

struct ReportEntry : RunDescription {
  ReportEntry() = default;
  explicit ReportEntry(const RunDescription& description) : RunDescription(description) {}

  bool inputsSet = false;
  bool executed = false;
  bool outputsReported = false;
  bool withoutErrors = false;
  bool interrupted = false;
  MessagesBySource messages;
  /// By port name, in byte order.
  std::map<std::string, OutputReport> outputs;

  /// The first four flags; an interruption afterwards doesn't undo them.
  bool succeeded() const noexcept {
    return inputsSet && executed && outputsReported && withoutErrors;
  }
};

struct ReportGroup {
  std::string name;
  bool loaded = false;
  bool finished = false;
  std::vector<ReportEntry> entries;
  /// Of this group and none of its entries.
  MessagesBySource messages;
};

}  // namespace vtlcmd

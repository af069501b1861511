#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "execution/failure.h"
#include "vtlcmd/logging/run_report.h"

namespace vtlcmd::runner {

/// What a frame that has run came to.
struct FrameOutcome {
  /// The frame's number as the user knows it.
  std::string frameText;
  Failure failure = Failure::none;
  /// Of the graph system.
  std::uint64_t errors = 0;
  std::uint64_t warnings = 0;
  std::chrono::system_clock::time_point started;
  double seconds = 0;
  /// The number of the worker process that ran it, from 1; 0 when the program itself did.
  unsigned worker = 0;
  /// How often it was run, this time included.
  unsigned attempts = 1;
  /// Those whose names the graph computed.
  std::set<std::filesystem::path> filesRead;

  bool succeeded() const noexcept { return failure == Failure::none; }
};

/// The same, and what a journal tells besides.
struct FrameRecord : FrameOutcome {
  /// With its messages handed out, when a report wants to know; else without anything.
  ReportEntry entry;
  /// By output, its exact value as JSON; empty when no report wants to know.
  std::map<std::string, std::string> values;
  /// By output, what its picture is drawn from as JSON, of those that have one in this frame.
  std::map<std::string, std::string> pictures;
};

}  // namespace vtlcmd::runner

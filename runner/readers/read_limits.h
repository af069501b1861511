#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

namespace vtlcmd::runner {

/// What the process that reads a foreign file may take. The defaults leave room for scenes of some
/// ten million points.
struct ReadLimits {
  /// This program, which is started again for each file; empty where the platform doesn't tell.
  std::filesystem::path program;
  /// In bytes, beyond the program itself; bounds what comes back too.
  std::uint64_t memory = std::uint64_t{4} << 30U;
  std::chrono::seconds processorTime{120};
  std::chrono::seconds wallTime{600};
  /// A file may name others outside its own folder.
  bool anywhere = false;
};

/// Those of this process, to be changed before anything is read.
ReadLimits& readLimits();

}  // namespace vtlcmd::runner

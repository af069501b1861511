#include "command_line/read_options.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <cstdint>

#include "command_line/usage_error.h"
#include "platform/memory_limit.h"
#include "readers/read_limits.h"
#include "text/library_text.h"
#include "text/size_text.h"
#include "text/spelled_number.h"

namespace vtlcmd::runner {
namespace {

std::uint64_t parseSize(const std::string& option, const std::string& text) {
  if (const std::optional<std::uint64_t> size = sizeFrom(text)) return *size;
  throw UsageError(option + " takes a size like 512M or 4G, not " + inQuotes(text));
}

std::chrono::seconds parseSeconds(const std::string& option, const std::string& text) {
  // The processor's time limit is kept in 32 bits on some systems.
  const std::optional<std::int32_t> number = spelledNumber<std::int32_t>(text);
  if (number && *number > 0) return std::chrono::seconds(*number);
  throw UsageError(option + " takes a whole number of seconds, not " + inQuotes(text));
}

}  // namespace

void ReadOptions::addTo(CLI::App& command) {
  command
      .add_option("--memory-limit", memoryLimit_,
                  "Memory that values may take, like 512M or 4G; nine tenths of what the process "
                  "may have unless given")
      ->type_name("SIZE");
  command
      .add_option("--read-memory", readMemory_,
                  "Memory that reading a mesh, an archive or a table may take; each is read in a "
                  "process of its own")
      ->type_name("SIZE")
      ->capture_default_str();
  command.add_option("--read-cpu", readProcessorTime_, "Processor time that it may take")
      ->type_name("SECONDS")
      ->capture_default_str();
  command.add_option("--read-time", readTime_, "Time that it may take by the clock")
      ->type_name("SECONDS")
      ->capture_default_str();
  command.add_flag("--read-anywhere", readAnywhere_,
                   "Let a mesh name further files outside its own folder");
}

void ReadOptions::apply(unsigned processes) const {
  ReadLimits& limits = readLimits();
  limits.memory = std::min(parseSize("--read-memory", readMemory_), mostMemory() / processes);
  limits.processorTime = parseSeconds("--read-cpu", readProcessorTime_);
  limits.wallTime = parseSeconds("--read-time", readTime_);
  limits.anywhere = readAnywhere_;
  limitMemory((memoryLimit_ ? parseSize("--memory-limit", *memoryLimit_) : mostMemory()) /
              processes);
}

}  // namespace vtlcmd::runner

#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd {

/// Where the JSON report of a run goes: nowhere, to a file or to the standard output.
class ReportFile {
 public:
  static constexpr const char* standardOutput = "-";

  /// `target` as `--report` has it, empty without that option.
  explicit ReportFile(std::string target) : target_(std::move(target)) {}

  /// Makes sure that there is somewhere to write to, which takes away what a file held. Throws
  /// UsageError.
  void open();

  /// Writes the report to what was opened. The logger's messages are handed out on the way, so this
  /// is done once. Throws std::runtime_error.
  void write(VtlCmdLogger& logger, const std::vector<std::string>& portNames);

 private:
  bool isFile() const { return !target_.empty() && target_ != standardOutput; }

  std::string target_;
  std::ofstream file_;
};

}  // namespace vtlcmd

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"
#include "report/whole_file.h"

namespace vtlcmd::runner {

/// Where a report of a run goes: to a file, as a page for people when its name ends in .html or
/// .htm, else as a JSON document; or as a document to the standard output.
class ReportFile {
 public:
  static constexpr const char* standardOutput = "-";

  /// `target` as `--report` has it.
  explicit ReportFile(std::string target) : target_(std::move(target)) {}

  /// Makes sure that there is somewhere to write to. Throws std::system_error.
  void open();

  /// Writes the report to what was opened. The logger's messages must have been distributed;
  /// `portNames` are the ports whose texts are told. Throws std::system_error. Called once.
  void write(const VtlCmdLogger& logger, const std::vector<std::string>& portNames);

  const std::string& target() const noexcept { return target_; }

 private:
  std::string target_;
  std::optional<WholeFile> file_;
};

}  // namespace vtlcmd::runner

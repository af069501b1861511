#pragma once

#include <list>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"
#include "report/report_file.h"

namespace vtlcmd::runner {

/// The reports of a run that a user asks for.
class RunReports {
 public:
  /// `targets` as `--report` has them.
  explicit RunReports(const std::vector<std::string>& targets);

  bool useStandardOutput() const;

  /// Makes sure that there is somewhere to write to. Throws UsageError.
  void open();

  /// Writes all of them, and hands out the logger's messages on the way, so this is done once.
  /// Throws std::runtime_error.
  void write(VtlCmdLogger& logger, const std::vector<std::string>& portNames);

 private:
  std::list<ReportFile> files_;
};

}  // namespace vtlcmd::runner

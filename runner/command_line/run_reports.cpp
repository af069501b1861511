#include "command_line/run_reports.h"

#include <algorithm>
#include <stdexcept>
#include <system_error>

#include "command_line/usage_error.h"
#include "report/message_distribution.h"

namespace vtlcmd::runner {
namespace {

std::string refusal(const ReportFile& file, const std::system_error& error) {
  return "the report can't be written to " + file.target() + ": " +
         error.code().default_error_condition().message();
}

}  // namespace

RunReports::RunReports(const std::vector<std::string>& targets)
    : files_(targets.begin(), targets.end()) {}

bool RunReports::useStandardOutput() const {
  return std::any_of(files_.begin(), files_.end(), [](const ReportFile& file) {
    return file.target() == ReportFile::standardOutput;
  });
}

void RunReports::open() {
  for (ReportFile& file : files_) {
    try {
      file.open();
    } catch (const std::system_error& error) {
      throw UsageError(refusal(file, error));
    }
  }
}

void RunReports::write(VtlCmdLogger& logger, const std::vector<std::string>& portNames) {
  if (files_.empty()) return;
  distributeMessages(logger);
  for (ReportFile& file : files_) {
    try {
      file.write(logger, portNames);
    } catch (const std::system_error& error) {
      throw std::runtime_error(refusal(file, error));
    }
  }
}

}  // namespace vtlcmd::runner

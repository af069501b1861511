#include "command_line/report_file.h"

#include <iostream>
#include <stdexcept>

#include "command_line/usage_error.h"
#include "report/run_report_json.h"

namespace vtlcmd {

void ReportFile::open() {
  if (!isFile() || file_.is_open()) return;
  file_.open(target_, std::ios::binary | std::ios::trunc);
  if (!file_) throw UsageError("the report can't be written to " + target_);
}

void ReportFile::write(VtlCmdLogger& logger, const std::vector<std::string>& portNames) {
  if (target_.empty()) return;
  std::ostream& stream = isFile() ? file_ : std::cout;
  stream << runReportText(runReportAsJson(logger, portNames)) << std::flush;
  // Of the standard output the program itself takes care at its end.
  if (isFile() && !stream) throw std::runtime_error("the report can't be written to " + target_);
}

}  // namespace vtlcmd

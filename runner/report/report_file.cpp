#include "report/report_file.h"

#include <filesystem>
#include <iostream>

#include "report/run_report_html.h"
#include "report/run_report_json.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

void ReportFile::open() {
  if (target_ != standardOutput) file_.emplace(filePath(target_));
}

void ReportFile::write(const VtlCmdLogger& logger, const std::vector<std::string>& portNames) {
  // Of the standard output the program itself takes care at its end.
  if (!file_) return writeJsonReport(std::cout, logger, portNames);
  const std::filesystem::path extension = filePath(target_).extension();
  const bool isPage = extension == ".html" || extension == ".htm";
  (isPage ? writeHtmlReport : writeJsonReport)(file_->stream(), logger, portNames);
  file_->commit();
}

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

#include "command_line/run_reports.h"
#include "command_line/shown_files.h"
#include "journal/run_journal.h"

namespace vtlcmd::runner {

/// What a report says of files that were shown.
struct ShowRecord {
  std::span<const ShownFile> files;
  const FrameRecord& frame;
  OutputForm form;
  std::uint32_t printLimit;
  std::filesystem::path plugInFile;
  std::vector<std::string> arguments;
  RunEnd end;
};

/// Makes the reports, from a journal in which the files are those of a run of one frame. Throws
/// OutputError.
void writeShowReports(const RunReports& reports, const ShowRecord& record);

/// Writes files and their values as one JSON document.
void writeShownFiles(std::ostream& stream, std::span<const ShownFile> files,
                     const FrameRecord& frame);

}  // namespace vtlcmd::runner

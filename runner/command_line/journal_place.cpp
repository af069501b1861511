#include "command_line/journal_place.h"

#include <fstream>
#include <system_error>

#include "command_line/usage_error.h"
#include "journal/journal_lines.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// A journal as far as its first bytes tell, or a file without any.
bool isJournal(const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) return false;
  std::string opening(journalOpening.size(), '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(opening.data(), static_cast<std::streamsize>(opening.size()));
  opening.resize(static_cast<std::size_t>(stream.gcount()));
  return journalOpening.starts_with(opening);
}

/// `report` is what can be made of the journal.
JournalFile open(const fs::path& file, bool restart, const std::string& report) {
  std::error_code ignored;
  const std::string name = fileText(file);
  if (fs::exists(fs::symlink_status(file, ignored))) {
    if (!isJournal(file)) throw UsageError(name + " is there already and is no journal of a run");
    if (!restart) {
      throw UsageError(name + " holds the journal of another run: 'vtlcmd report " + name + " -o " +
                       report + "' makes a report of it, --restart begins it anew");
    }
  }
  try {
    return JournalFile(file);
  } catch (const std::system_error& error) {
    throw UsageError("the journal can't be written to " + name + ": " + reasonOf(error));
  }
}

}  // namespace

std::optional<JournalFile> openJournal(const RunOptions& options, const RunReports& reports) {
  if (options.journal) return open(filePath(*options.journal), options.restart, "FILE");
  if (const std::optional<fs::path> place = reports.journalPlace()) {
    fs::path report = *place;
    return open(*place, options.restart, fileText(report.replace_extension()));
  }
  if (reports.empty()) return std::nullopt;
  return JournalFile::temporary();
}

}  // namespace vtlcmd::runner

#include "command_line/journal_place.h"

#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

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

class Opening {
 public:
  Opening(const RunOptions& options, const std::string& runContent, const FrameList& frames)
      : options_(options), runContent_(runContent), frames_(frames) {}

  /// `report` is what can be made of the journal.
  OpenJournal open(const fs::path& file, const std::string& report) const {
    try {
      std::error_code ignored;
      if (fs::exists(fs::symlink_status(file, ignored))) {
        refuse(file, report);
        if (options_.resume) {
          if (std::optional<EarlierRun> earlier = readEarlierRun(file, runContent_, frames_))
            return {JournalFile(file, earlier->size), *std::move(earlier)};
        }
      }
      return {JournalFile(file)};
    } catch (const DifferentRun& difference) {
      throw UsageError(std::string(difference.what()) + "; --restart begins it anew");
    } catch (const std::system_error& error) {
      throwIfOutOfMemory(error);
      throw UsageError("the journal can't be written to " + fileText(file) + ": " +
                       reasonOf(error));
    }
  }

 private:
  void refuse(const fs::path& file, const std::string& report) const {
    const std::string name = fileText(file);
    if (!isJournal(file)) throw UsageError(name + " is there already and is no journal of a run");
    if (options_.restart || options_.resume) return;
    throw UsageError(name + " holds the journal of another run: 'vtlcmd report " + name + " -o " +
                     report +
                     "' makes a report of it, --resume goes on with it, --restart begins "
                     "it anew");
  }

  const RunOptions& options_;
  const std::string& runContent_;
  const FrameList& frames_;
};

}  // namespace

bool needsJournal(const RunOptions& options, const RunReports& reports) {
  return options.journal || !reports.empty();
}

void refuseLostResume(const RunOptions& options) {
  if (options.resume)
    throw UsageError(
        "--resume needs the journal that the run left: --journal, or --report with "
        "the same file");
}

OpenJournal openJournal(const RunOptions& options, const RunReports& reports,
                        const std::string& runContent, const FrameList& frames) {
  const Opening opening(options, runContent, frames);
  if (options.journal) return opening.open(filePath(*options.journal), "FILE");
  if (const std::optional<fs::path> place = reports.journalPlace()) {
    fs::path report = *place;
    return opening.open(*place, fileText(report.replace_extension()));
  }
  refuseLostResume(options);
  return {JournalFile::temporary()};
}

}  // namespace vtlcmd::runner

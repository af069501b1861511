#include "diff/compared_run.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "diff/report_frames.h"
#include "journal/journal_reader.h"
#include "report/frame_facts.h"
#include "report/frame_reader.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

class JournalRun : public ComparedRun {
 public:
  explicit JournalRun(const std::string& file)
      : journals_({file}), survey_(surveyJournals(journals_)), reader_(journals_, survey_) {}

  const Json& run() const override { return survey_.run; }

  std::optional<ComparedFrame> next() override {
    if (!reader_.next()) return std::nullopt;
    return ComparedFrame{reader_.number(), reader_.parse(reader_.line().content)};
  }

 private:
  Journals journals_;
  JournalSurvey survey_;
  FrameReader reader_;
};

class ReportRun : public ComparedRun {
 public:
  /// Throws as ReportFrames does.
  ReportRun(std::ifstream stream, std::string name)
      : stream_(std::move(stream)), name_(std::move(name)), frames_(stream_) {}

  const Json& run() const override { return frames_.run(); }

  std::optional<ComparedFrame> next() override {
    std::optional<Json> frame = frames_.next();
    if (!frame) return std::nullopt;
    const double number = frameNumber(frame->at("frame"));
    if (last_ && !(number >= *last_))
      throw JournalError(name_ + ": the frames aren't in the order of their numbers");
    last_ = number;
    return ComparedFrame{number, std::move(*frame)};
  }

 private:
  std::ifstream stream_;
  std::string name_;
  ReportFrames frames_;
  std::optional<double> last_;
};

}  // namespace

std::unique_ptr<ComparedRun> openRun(const std::string& file) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(filePath(file), ignored);
  const std::string isNeither = file + " is neither a journal nor a JSON report of a run";
  if (exists(status) && !is_regular_file(status)) throw JournalError(isNeither);
  std::ifstream stream = openJournalFile(file);
  std::string opening(journalOpening.size(), '\0');
  stream.read(opening.data(), static_cast<std::streamsize>(opening.size()));
  if (opening == journalOpening) return std::make_unique<JournalRun>(file);
  stream.clear();
  stream.seekg(0);
  try {
    return std::make_unique<ReportRun>(std::move(stream), file);
  } catch (const Json::exception&) {
    throw JournalError(isNeither);
  } catch (const JsonScanError&) {
    throw JournalError(isNeither);
  }
}

}  // namespace vtlcmd::runner

#include "diff/compared_run.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "journal/journal_reader.h"
#include "report/frame_reader.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

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
  /// Throws Json::exception for a document that is no report.
  explicit ReportRun(std::istream& stream) {
    Json report = Json::parse(stream);
    run_ = std::move(report.at("run"));
    for (Json& frame : report.at("frames")) {
      const double number = frameNumber(frame.at("frame"));
      frames_.push_back({number, std::move(frame)});
    }
    std::stable_sort(
        frames_.begin(), frames_.end(),
        [](const ComparedFrame& a, const ComparedFrame& b) { return a.number < b.number; });
  }

  const Json& run() const override { return run_; }

  std::optional<ComparedFrame> next() override {
    if (next_ == frames_.size()) return std::nullopt;
    return std::move(frames_[next_++]);
  }

 private:
  Json run_;
  std::vector<ComparedFrame> frames_;
  std::size_t next_ = 0;
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
    return std::make_unique<ReportRun>(stream);
  } catch (const Json::exception&) {
    throw JournalError(isNeither);
  }
}

}  // namespace vtlcmd::runner

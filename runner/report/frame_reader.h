#pragma once

#include <cstddef>
#include <string>

#include "journal/journal_lines.h"
#include "report/journal_survey.h"
#include "text/json.h"

namespace vtlcmd::runner {

/// Reads the frames of a report again, each once, in the order of their numbers. The survey is one
/// of these journals; both must outlive this.
class FrameReader {
 public:
  FrameReader(Journals& journals, const JournalSurvey& survey)
      : journals_(journals), survey_(survey) {}

  /// Goes to the next frame. False at the end. Throws JournalError.
  bool next();

  /// The frame's line, valid until the next one; its "index" is that of the job. A JSON object of
  /// it is parsed by the second one, which throws JournalError.
  const JournalLine& line() const noexcept { return line_; }
  Json parse(std::string_view object) const;

  const FrameEntry& entry() const { return survey_.entries[survey_.job.indexAt(place_)]; }
  const ReportedRun& run() const { return survey_.runs[entry().run]; }

  /// The frame's place among all of the job, by number; leaves out what is missing.
  std::size_t place() const noexcept { return place_; }
  double number() const { return survey_.job.frameAt(place_); }

 private:
  void read();
  [[noreturn]] void fail() const;

  Journals& journals_;
  const JournalSurvey& survey_;
  std::size_t nextPlace_ = 0;
  std::size_t place_ = 0;
  std::string text_;
  std::string content_;
  JournalLine line_;
};

}  // namespace vtlcmd::runner

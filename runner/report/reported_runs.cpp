#include "report/reported_runs.h"

#include <algorithm>

#include "journal/journal_reader.h"
#include "journal/run_key.h"

namespace vtlcmd::runner {
namespace {

/// Of the job where the run is a part of one.
std::string jobText(const Json& run) {
  return run.contains("job_frames") ? run.at("job_frames") : run.at("frames");
}

class RunReader {
 public:
  explicit RunReader(Journals& journals) : journals_(journals) {}

  ReportedRuns read() {
    for (std::size_t journal = 0; journal < journals_.size(); ++journal) read(journal);
    if (runs_.runs.empty())
      throw JournalError(journals_.name(0) + " holds no run: it ends in its first line");
    return std::move(runs_);
  }

 private:
  void read(std::size_t journal) {
    JournalReader reader(journals_.lines(journal), journals_.name(journal));
    for (bool isFirst = true; reader.next(); isFirst = false) {
      const std::string_view kind = reader.line().kind;
      if (isFirst && kind != line_kinds::run) reader.fail();
      try {
        if (kind == line_kinds::run) add(reader, journal);
      } catch (const Json::exception&) {
        reader.fail();
      }
      if (kind == line_kinds::end) {
        runs_.runs.back().end = reader.line().content;
        runs_.runs.back().endTimes = reader.line().times;
      }
    }
  }

  void add(const JournalReader& reader, std::size_t journal) {
    const Json run = reader.parse(reader.line().content);
    if (run.value("form", 0) != journalForm)
      throw JournalError(journals_.name(journal) + " has a form that this program doesn't know");
    requireSameKey(run, journal);
    if (run.at("loaded")) runs_.jobTexts.insert(jobText(run));
    const Json times = reader.parse(reader.line().times);
    ReportedRun& reported = runs_.runs.emplace_back();
    reported.attemptStartHostProcess = {times.at("attempt"), times.at("started"), times.at("host"),
                                        times.at("process")};
    reported.journal = journal;
    reported.offset = reader.offset();
    reported.times = reader.line().times;
  }

  void requireSameKey(const Json& run, std::size_t journal) {
    const Json key = run.value("key", Json());
    if (runs_.runs.empty()) {
      firstKey_ = key;
      firstJournal_ = journal;
    }
    const std::string difference = keyDifference(key, firstKey_);
    if (difference.empty()) return;
    throw ForeignJournal(journals_.name(journal) + " holds another run than " +
                         journals_.name(firstJournal_) + ": it differs in " + difference);
  }

  Journals& journals_;
  ReportedRuns runs_;
  Json firstKey_;
  std::size_t firstJournal_ = 0;
};

/// Of copies one that tells of the run's end comes first.
bool isEarlier(const ReportedRun& a, const ReportedRun& b) {
  return a.attemptStartHostProcess == b.attemptStartHostProcess
             ? a.end > b.end
             : a.attemptStartHostProcess < b.attemptStartHostProcess;
}

}  // namespace

ReportedRuns readRuns(Journals& journals) {
  ReportedRuns result = RunReader(journals).read();
  std::stable_sort(result.runs.begin(), result.runs.end(), isEarlier);
  for (std::size_t i = 1; i < result.runs.size(); ++i) {
    const bool isCopy =
        result.runs[i].attemptStartHostProcess == result.runs[i - 1].attemptStartHostProcess;
    result.runs[i].number = result.runs[i - 1].number + (isCopy ? 0 : 1);
  }
  return result;
}

}  // namespace vtlcmd::runner

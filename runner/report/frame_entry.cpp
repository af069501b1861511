#include "report/frame_entry.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

#include "journal/journal_reader.h"

namespace vtlcmd::runner {
namespace {

/// The places of runs in the order in which journals are read.
std::vector<std::size_t> readingOrder(const std::vector<ReportedRun>& runs) {
  std::vector<std::size_t> places(runs.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::sort(places.begin(), places.end(), [&runs](std::size_t a, std::size_t b) {
    return std::pair(runs[a].journal, runs[a].offset) < std::pair(runs[b].journal, runs[b].offset);
  });
  return places;
}

class EntryReader {
 public:
  EntryReader(Journals& journals, const std::vector<ReportedRun>& runs, const Job& job)
      : journals_(journals),
        runs_(runs),
        job_(job),
        places_(readingOrder(runs)),
        nextPlace_(places_.begin()),
        entries_(job.size()) {}

  std::vector<FrameEntry> read() {
    for (std::size_t journal = 0; journal < journals_.size(); ++journal) read(journal);
    return std::move(entries_);
  }

 private:
  void read(std::size_t journal) {
    for (JournalReader reader(journals_.lines(journal), journals_.name(journal)); reader.next();) {
      if (reader.line().kind == line_kinds::run) beginRun(reader, journal);
      if (reader.line().kind == line_kinds::frame) add(reader);
    }
  }

  /// What was read of the runs must still be so.
  void beginRun(const JournalReader& reader, std::size_t journal) {
    if (nextPlace_ == places_.end() || runs_[*nextPlace_].journal != journal ||
        runs_[*nextPlace_].offset != reader.offset())
      throw JournalError(journals_.name(journal) + " changed while it was read");
    run_ = *nextPlace_++;
  }

  void add(const JournalReader& reader) {
    const std::optional<FrameFacts> facts = frameFacts(reader.line().content);
    const std::optional<std::size_t> index = facts ? job_.indexOf(*facts) : std::nullopt;
    if (!index) reader.fail();
    const FrameEntry entry(*facts, reader.offset(), run_);
    if (isBetter(entry, entries_[*index])) entries_[*index] = entry;
  }

  bool isBetter(const FrameEntry& entry, const FrameEntry& other) const {
    if (other.isThere == 0) return true;
    if (entry.succeeded() != other.succeeded()) return entry.succeeded();
    return rank(entry) > rank(other);
  }

  std::pair<std::size_t, std::uint64_t> rank(const FrameEntry& entry) const {
    return {runs_[entry.run].number, entry.offset};
  }

  Journals& journals_;
  const std::vector<ReportedRun>& runs_;
  const Job& job_;
  std::vector<std::size_t> places_;
  std::vector<std::size_t>::const_iterator nextPlace_;
  std::size_t run_ = 0;
  std::vector<FrameEntry> entries_;
};

constexpr std::uint64_t lastOffset = (std::uint64_t{1} << 60U) - 1;

}  // namespace

FrameEntry::FrameEntry(const FrameFacts& facts, std::uint64_t lineOffset, std::size_t runPlace)
    : offset(lineOffset & lastOffset),
      failure(static_cast<std::uint64_t>(facts.failure) & 3U),
      interrupted(facts.interrupted ? 1U : 0U),
      isThere(1),
      run(static_cast<std::uint32_t>(runPlace)),
      graphErrors(static_cast<std::uint32_t>(facts.graphErrors)),
      graphWarnings(static_cast<std::uint32_t>(facts.graphWarnings)),
      problems(facts.problems) {}

std::vector<FrameEntry> readEntries(Journals& journals, const std::vector<ReportedRun>& runs,
                                    const Job& job) {
  return EntryReader(journals, runs, job).read();
}

}  // namespace vtlcmd::runner

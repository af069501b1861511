#include "farm/frame_survey.h"

#include <optional>
#include <set>

#include "journal/journal_reader.h"
#include "report/frame_facts.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

class Survey {
 public:
  explicit Survey(std::size_t frames) : states_(frames, FrameState::missing) {}

  void addJournal(const std::filesystem::path& file) {
    std::ifstream stream = openJournalFile(fileText(file));
    JournalReader reader(stream, fileText(file));
    std::set<std::size_t> open;
    while (reader.next()) addLine(reader, open);
    for (const std::size_t index : open) {
      if (states_[index] == FrameState::missing) states_[index] = FrameState::started;
    }
  }

  std::vector<FrameState> states() && { return std::move(states_); }

 private:
  void addLine(const JournalReader& reader, std::set<std::size_t>& open) {
    const std::string_view kind = reader.line().kind;
    // A run that has come to its end has none open.
    if (kind == line_kinds::end) open.clear();
    if (kind != line_kinds::start && kind != line_kinds::frame) return;
    if (kind == line_kinds::start) {
      open.insert(indexOf(reader));
      return;
    }
    const std::optional<FrameFacts> facts = frameFacts(reader.line().content);
    if (!facts || facts->index >= states_.size()) reader.fail();
    open.erase(facts->index);
    if (states_[facts->index] != FrameState::done) states_[facts->index] = stateOf(*facts);
  }

  std::size_t indexOf(const JournalReader& reader) const {
    const auto line = reader.parse(reader.line().content);
    const auto index = line.find("index");
    if (index == line.end() || !index->is_number_unsigned() || *index >= states_.size())
      reader.fail();
    return *index;
  }

  static FrameState stateOf(const FrameFacts& facts) {
    if (facts.failure == Failure::none) return FrameState::done;
    return facts.failure == Failure::transient ? FrameState::failedForNow : FrameState::failed;
  }

  std::vector<FrameState> states_;
};

}  // namespace

std::vector<FrameState> surveyFrames(const FarmFolder& folder, std::size_t frames) {
  Survey survey(frames);
  for (const std::filesystem::path& file : folder.journalFiles()) survey.addJournal(file);
  return std::move(survey).states();
}

}  // namespace vtlcmd::runner

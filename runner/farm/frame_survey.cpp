#include "farm/frame_survey.h"

#include <cerrno>
#include <fstream>
#include <set>
#include <system_error>

#include "journal/journal_reader.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

/// The texts, numbers and flags of an object, without the values that may be large.
Json plainMembers(std::string_view object) {
  return Json::parse(object, [](int depth, Json::parse_event_t event, Json&) {
    return depth == 0 || (event != Json::parse_event_t::object_start &&
                          event != Json::parse_event_t::array_start);
  });
}

class Survey {
 public:
  explicit Survey(std::size_t frames) : states_(frames, FrameState::missing) {}

  void addJournal(const std::filesystem::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw JournalError(fileText(file) + ": " + std::generic_category().message(errno));
    JournalReader reader(stream, fileText(file));
    std::set<std::size_t> open;
    while (reader.next()) {
      try {
        addLine(reader, open);
      } catch (const Json::exception&) {
        reader.fail();
      }
    }
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
    const Json line = plainMembers(reader.line().content);
    const std::size_t index = line.at("index");
    if (index >= states_.size()) reader.fail();
    if (kind == line_kinds::start) {
      open.insert(index);
      return;
    }
    open.erase(index);
    if (states_[index] != FrameState::done) states_[index] = stateOf(line);
  }

  static FrameState stateOf(const Json& line) {
    if (line.at("succeeded").get<bool>()) return FrameState::done;
    return line.at("failure") == "transient" ? FrameState::failedForNow : FrameState::failed;
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

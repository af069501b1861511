#include "graph/json_document.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "graph/graph_error.h"
#include "text/library_text.h"
#include "text/text_place.h"

namespace vtlcmd::runner {
namespace {

using nlohmann::json;
using Event = json::parse_event_t;

/// Follows the parser through a document, so that it's known where an error is met.
class ParseWatch {
 public:
  void onEvent(Event event, const json& parsed) {
    switch (event) {
      case Event::object_start:
      case Event::array_start:
        levels_.emplace_back();
        levels_.back().isArray = event == Event::array_start;
        break;
      case Event::key:
        onKey(parsed.get_ref<const std::string&>());
        break;
      case Event::value:
        if (parsed.is_string()) refuseNul(parsed.get_ref<const std::string&>());
        endValue();
        break;
      case Event::object_end:
      case Event::array_end:
        levels_.pop_back();
        endValue();
        break;
    }
  }

  std::string place() const {
    std::string place = "$";
    for (const Level& level : levels_) {
      if (level.isArray) {
        place += "[" + std::to_string(level.index) + "]";
      } else if (!level.key.empty()) {
        place += "." + level.key;
      }
    }
    return place;
  }

 private:
  struct Level {
    bool isArray = false;
    std::size_t index = 0;
    std::string key;
    std::set<std::string> keys;
  };

  void endValue() {
    if (!levels_.empty()) ++levels_.back().index;
  }

  void refuseNul(const std::string& text) const {
    if (text.find('\0') != std::string::npos)
      throw GraphError(place(), "a text can't hold a NUL character");
  }

  void onKey(const std::string& key) {
    refuseNul(key);
    Level& level = levels_.back();
    level.key = key;
    if (!level.keys.insert(key).second)
      throw GraphError(place(), "the key " + inQuotes(key) + " stands twice in one object");
  }

  std::vector<Level> levels_;
};

/// The parser's sentence behind the last of the marks that precede it.
std::string sentenceOf(const json::exception& error, std::string_view mark) {
  const std::string_view text = error.what();
  const std::size_t start = text.find(mark);
  return std::string(start == std::string_view::npos ? text : text.substr(start + mark.size()));
}

}  // namespace

json parseJson(std::string_view text) {
  // The parser takes it for the end of the document.
  const std::size_t nul = text.find('\0');
  if (nul != std::string_view::npos)
    throw GraphError(lineAndColumn(text, nul), "a NUL character can't stand here");
  ParseWatch watch;
  const auto onEvent = [&](int, Event event, json& parsed) {
    watch.onEvent(event, parsed);
    return true;
  };
  try {
    return json::parse(text.begin(), text.end(), onEvent);
  } catch (const json::parse_error& error) {
    // The parser counts bytes from 1.
    throw GraphError(lineAndColumn(text, error.byte == 0 ? 0 : error.byte - 1),
                     sentenceOf(error, ": "));
  } catch (const json::exception& error) {
    throw GraphError(watch.place(), sentenceOf(error, "] "));
  }
}

}  // namespace vtlcmd::runner

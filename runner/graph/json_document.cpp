#include "graph/json_document.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "graph/graph_error.h"
#include "text/library_text.h"

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
      case Event::object_end:
      case Event::array_end:
        levels_.pop_back();
        [[fallthrough]];
      case Event::value:
        if (!levels_.empty()) ++levels_.back().index;
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

  void onKey(const std::string& key) {
    Level& level = levels_.back();
    level.key = key;
    if (!level.keys.insert(key).second)
      throw GraphError(place(), "the key " + inQuotes(key) + " stands twice in one object");
  }

  std::vector<Level> levels_;
};

/// "line 3, column 7" of a byte, counted from 1 as the parser does.
std::string lineAndColumn(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, std::min(byte == 0 ? 0 : byte - 1, text.size()));
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t lineStart = before.rfind('\n');
  const std::size_t column =
      lineStart == std::string_view::npos ? before.size() + 1 : before.size() - lineStart;
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The parser's sentence behind the last of the marks that precede it.
std::string sentenceOf(const json::exception& error, std::string_view mark) {
  const std::string_view text = error.what();
  const std::size_t start = text.find(mark);
  return std::string(start == std::string_view::npos ? text : text.substr(start + mark.size()));
}

}  // namespace

json parseJson(std::string_view text) {
  ParseWatch watch;
  const auto onEvent = [&](int, Event event, json& parsed) {
    watch.onEvent(event, parsed);
    return true;
  };
  try {
    return json::parse(text.begin(), text.end(), onEvent);
  } catch (const json::parse_error& error) {
    throw GraphError(lineAndColumn(text, error.byte), sentenceOf(error, ": "));
  } catch (const json::exception& error) {
    throw GraphError(watch.place(), sentenceOf(error, "] "));
  }
}

}  // namespace vtlcmd::runner

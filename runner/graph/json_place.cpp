#include "graph/json_place.h"

#include <algorithm>
#include <set>

#include "graph/graph_error.h"
#include "text/library_text.h"
#include "text/near_misses.h"

namespace vtlcmd {
namespace {

using nlohmann::json;

/// "line 3, column 7" of a byte, counted from 1 as the parser does.
std::string lineAndColumn(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, std::min(byte == 0 ? 0 : byte - 1, text.size()));
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t lineStart = before.rfind('\n');
  const std::size_t column =
      lineStart == std::string_view::npos ? before.size() + 1 : before.size() - lineStart;
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The parser's sentence without its prefix of name, number and position.
std::string sentenceOf(const json::exception& error) {
  const std::string_view text = error.what();
  const std::size_t position = text.find("column ");
  const std::size_t start = text.find(": ", position == std::string_view::npos ? 0 : position);
  return std::string(start == std::string_view::npos ? text : text.substr(start + 2));
}

}  // namespace

json parseJson(std::string_view text) {
  std::vector<std::set<std::string>> keys;
  const auto refuseRepeatedKeys = [&](int, json::parse_event_t event, json& parsed) {
    if (event == json::parse_event_t::object_start) keys.emplace_back();
    if (event == json::parse_event_t::object_end) keys.pop_back();
    if (event == json::parse_event_t::key && !keys.back().insert(parsed.get<std::string>()).second)
      throw GraphError(
          "$", "the key " + inQuotes(parsed.get<std::string>()) + " stands twice in one object");
    return true;
  };
  try {
    return json::parse(text.begin(), text.end(), refuseRepeatedKeys);
  } catch (const json::parse_error& error) {
    throw GraphError(lineAndColumn(text, error.byte), sentenceOf(error));
  } catch (const json::exception& error) {
    const std::string_view sentence = error.what();
    throw GraphError("$", std::string(sentence.substr(sentence.find("] ") + 2)));
  }
}

void JsonPlace::allowMembers(std::initializer_list<std::string_view> names) const {
  if (!value_->is_object()) fail("expected an object, found " + excerptOf(*value_));
  for (const auto& [key, member] : value_->items()) {
    if (std::find(names.begin(), names.end(), key) != names.end()) continue;
    const std::vector<std::string> known(names.begin(), names.end());
    fail("the key " + inQuotes(key) + " has no meaning here" + nearMissHint(key, known));
  }
}

std::optional<JsonPlace> JsonPlace::member(std::string_view name) const {
  const auto found = value_->find(name);
  if (found == value_->end()) return std::nullopt;
  return JsonPlace(*found, place_ + "." + std::string(name));
}

JsonPlace JsonPlace::requiredMember(std::string_view name) const {
  if (std::optional<JsonPlace> found = member(name)) return *std::move(found);
  fail("the key " + inQuotes(name) + " is missing");
}

std::vector<JsonPlace> JsonPlace::listMember(std::string_view name) const {
  const std::optional<JsonPlace> found = member(name);
  return found ? found->elements() : std::vector<JsonPlace>{};
}

std::vector<JsonPlace> JsonPlace::elements() const {
  if (!value_->is_array()) fail("expected an array, found " + excerptOf(*value_));
  std::vector<JsonPlace> places;
  for (std::size_t i = 0; i < value_->size(); ++i)
    places.push_back(JsonPlace((*value_)[i], place_ + "[" + std::to_string(i) + "]"));
  return places;
}

std::vector<std::pair<std::string, JsonPlace>> JsonPlace::members() const {
  if (!value_->is_object()) fail("expected an object, found " + excerptOf(*value_));
  std::vector<std::pair<std::string, JsonPlace>> places;
  for (const auto& [key, member] : value_->items())
    places.emplace_back(key, JsonPlace(member, place_ + "." + key));
  return places;
}

const std::string& JsonPlace::text() const {
  if (!value_->is_string()) fail("expected a text, found " + excerptOf(*value_));
  return value_->get_ref<const std::string&>();
}

const std::string& JsonPlace::name() const {
  const std::string& name = text();
  if (name.empty()) fail("a name can't be empty");
  const bool hasControl = std::any_of(name.begin(), name.end(),
                                      [](char c) { return static_cast<unsigned char>(c) < 32; });
  if (hasControl) fail("a name can't hold control characters");
  return name;
}

void JsonPlace::fail(const std::string& text) const { throw GraphError(place_, text); }

std::string excerptOf(const json& value) {
  constexpr std::size_t longest = 40;
  if (value.is_array()) return "an array";
  if (value.is_object()) return "an object";
  std::string text = value.dump(-1, ' ', true);
  if (text.size() > longest) text = text.substr(0, longest) + "...";
  return text;
}

}  // namespace vtlcmd

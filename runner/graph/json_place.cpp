#include "graph/json_place.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "graph/graph_error.h"
#include "text/library_text.h"
#include "text/near_misses.h"

namespace vtlcmd::runner {

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

std::string excerptOf(const nlohmann::json& value) {
  constexpr std::size_t longest = 40;
  if (value.is_array()) return "an array";
  if (value.is_object()) return "an object";
  std::string text = value.dump(-1, ' ', true);
  if (text.size() > longest) text = text.substr(0, longest) + "...";
  return text;
}

}  // namespace vtlcmd::runner

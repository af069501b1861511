#include "graph/json_place.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "graph/graph_error.h"
#include "text/library_text.h"
#include "text/near_misses.h"

namespace vtlcmd::runner {

void JsonPlace::allowMembers(std::initializer_list<std::string_view> names) const {
  if (!value_->is_object()) fail("expected an object, found " + excerpt());
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
  if (!value_->is_array()) fail("expected an array, found " + excerpt());
  std::vector<JsonPlace> places;
  for (std::size_t i = 0; i < value_->size(); ++i)
    places.push_back(JsonPlace((*value_)[i], place_ + "[" + std::to_string(i) + "]"));
  return places;
}

std::vector<std::pair<std::string, JsonPlace>> JsonPlace::members() const {
  if (!value_->is_object()) fail("expected an object, found " + excerpt());
  std::vector<std::pair<std::string, JsonPlace>> places;
  for (const auto& [key, member] : value_->items())
    places.emplace_back(key, JsonPlace(member, place_ + "." + key));
  return places;
}

const std::string& JsonPlace::text() const {
  if (!value_->is_string()) fail("expected a text, found " + excerpt());
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

bool JsonPlace::isArray() const noexcept { return value_->is_array(); }

std::size_t JsonPlace::elementCount() const noexcept { return value_->size(); }

JsonScalar JsonPlace::scalar() const {
  using Type = nlohmann::json::value_t;
  switch (value_->type()) {
    case Type::null:
      return nullptr;
    case Type::boolean:
      return value_->get<bool>();
    case Type::number_unsigned:
      return value_->get<std::uint64_t>();
    case Type::number_integer:
      return value_->get<std::int64_t>();
    case Type::number_float:
      return value_->get<double>();
    case Type::string:
      return std::string_view(value_->get_ref<const std::string&>());
    default:
      return {};
  }
}

std::string JsonPlace::json() const { return value_->dump(); }

std::string JsonPlace::excerpt() const {
  constexpr std::size_t longest = 40;
  if (value_->is_array()) return "an array";
  if (value_->is_object()) return "an object";
  std::string text = value_->dump(-1, ' ', true);
  if (text.size() > longest) text.replace(longest, text.size() - longest, "...");
  return text;
}

}  // namespace vtlcmd::runner

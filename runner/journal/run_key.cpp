#include "journal/run_key.h"

#include <algorithm>

#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

/// Nobody compares these by eye.
bool isHash(const Json& value) {
  constexpr std::size_t digits = 64;
  return value.is_string() && value.get_ref<const std::string&>().size() == digits;
}

std::string shown(const Json* value) { return value == nullptr ? "nothing" : jsonText(*value); }

const Json* find(const Json& object, const std::string& name) {
  const auto found = object.find(name);
  return found == object.end() ? nullptr : &*found;
}

class Difference {
 public:
  void add(const std::string& place, const Json* value, const Json* other) {
    const bool areObjects =
        value != nullptr && other != nullptr && value->is_object() && other->is_object();
    if (areObjects) return addParts(place, *value, *other);
    if (value != nullptr && other != nullptr && *value == *other) return;
    text_ += (text_.empty() ? "" : ", ") + place;
    if ((value != nullptr && isHash(*value)) || (other != nullptr && isHash(*other))) return;
    text_ += " (" + shown(value) + ", not " + shown(other) + ")";
  }

  const std::string& text() const { return text_; }

 private:
  void addParts(const std::string& place, const Json& value, const Json& other) {
    const std::string before = place.empty() ? "" : place + ".";
    for (const auto& [name, part] : value.items()) add(before + name, &part, find(other, name));
    for (const auto& [name, part] : other.items()) {
      if (!value.contains(name)) add(before + name, nullptr, &part);
    }
  }

  std::string text_;
};

}  // namespace

std::string keyDifference(const Json& key, const Json& other) {
  Difference difference;
  difference.add("", &key, &other);
  return difference.text();
}

}  // namespace vtlcmd::runner

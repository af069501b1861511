#include "report/flat_value.h"

#include <array>
#include <cstddef>

namespace vtlcmd::runner {
namespace {

constexpr std::array componentNames{"x", "y", "z", "w"};

class PartList {
 public:
  explicit PartList(bool withElements) : withElements_(withElements) {}

  void add(const std::string& place, const Json& value) {
    if (value.is_array()) {
      addComponents(place, value);
    } else if (value.is_object()) {
      for (const auto& [name, part] : value.items()) addProperty(place, name, part);
    } else {
      parts_.push_back({place, &value});
    }
  }

  std::vector<ValuePart> parts() { return std::move(parts_); }

 private:
  void addProperty(const std::string& place, const std::string& name, const Json& part) {
    if (name == "sizes" && part.size() == 1) return add(inside(place, "size"), part.front());
    if (name == "sizes") return addList(inside(place, "size"), part);
    if (name != "elements") return add(inside(place, name), part);
    if (withElements_) addList(inside(place, name), part);
  }

  void addComponents(const std::string& place, const Json& vector) {
    if (vector.size() > componentNames.size()) return addList(place, vector);
    for (std::size_t i = 0; i < vector.size(); ++i)
      add(inside(place, componentNames.at(i)), vector[i]);
  }

  void addList(const std::string& place, const Json& list) {
    for (std::size_t i = 0; i < list.size(); ++i) add(inside(place, std::to_string(i)), list[i]);
  }

  static std::string inside(const std::string& place, const std::string& name) {
    return place.empty() ? name : place + "." + name;
  }

  bool withElements_;
  std::vector<ValuePart> parts_;
};

}  // namespace

std::vector<ValuePart> partsOf(const Json& value, bool withElements) {
  PartList list(withElements);
  list.add("", value);
  return list.parts();
}

}  // namespace vtlcmd::runner

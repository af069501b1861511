#include "vtlcmd/stand_in/object_builder.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "orvel_core/owned_block.h"
#include "vtlcmd/stand_in/make_string.h"

namespace Vantrel {
namespace {

struct Property {
  Orvel::String key;
  vtlcmd::Any value;
};

template <typename Properties>
auto find(Properties& properties, Orvel::StringView key) {
  return std::find_if(properties.begin(), properties.end(), [&](const Property& property) {
    const Orvel::StringView own = property.key;
    return std::string_view(own.data, own.size) == std::string_view(key.data, key.size);
  });
}

/// The one class of objects: an ordered list, since objects have few properties.
class PropertyList final : public Object {
 public:
  PropertyList() = default;
  explicit PropertyList(std::vector<Property> copied) : properties(std::move(copied)) {}

  vtlcmd::Any propertyByKey(Orvel::StringView key) const override {
    const auto found = find(properties, key);
    return found == properties.end() ? vtlcmd::Any() : found->value;
  }

  void set(Orvel::StringView key, vtlcmd::Any value) {
    const auto found = find(properties, key);
    if (found == properties.end()) {
      properties.push_back({Orvel::makeString(key), std::move(value)});
    } else {
      swap(found->value, value);
    }
  }

  std::vector<Property> properties;
};

template <typename AnyObject>
auto& listOf(AnyObject& object) {
  using List = std::conditional_t<std::is_const_v<AnyObject>, const PropertyList, PropertyList>;
  auto* list = dynamic_cast<List*>(&object);
  if (list == nullptr) throw std::invalid_argument("The object was not made by createObject.");
  return *list;
}

Orvel::MutablePtr<Object> asObject(Orvel::MutablePtr<PropertyList> list) {
  return {std::exchange(list.pointer, nullptr), std::exchange(list.control, nullptr)};
}

}  // namespace

Orvel::MutablePtr<Object> createObject() {
  return asObject(Orvel::Internal::makeOwnedMutable<PropertyList>());
}

void setProperty(Object& object, Orvel::StringView key, vtlcmd::Any value) {
  listOf(object).set(key, std::move(value));
}

Orvel::Array<Orvel::String> propertyKeys(const Object& object) {
  Orvel::Array<Orvel::String> keys;
  for (const Property& property : listOf(object).properties) keys.append(property.key);
  return keys;
}

Orvel::MutablePtr<Object> copyObject(const Object& object) {
  return asObject(Orvel::Internal::makeOwnedMutable<PropertyList>(listOf(object).properties));
}

}  // namespace Vantrel

#include <utility>

#include "vantrel_geometry/prototypes.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace Vantrel::Geometry {

const Orvel::String sData("data");

namespace {

constexpr Orvel::StringView countKey{"count", 5};

void setGeoProperty(Object& owner, Orvel::StringView name, Orvel::Ptr<Object> prototype,
                    Orvel::StringView contentKey, vtlcmd::Any content) {
  Orvel::MutablePtr<Object> property = createObject();
  setProperty(*property, prototypeKey, vtlcmd::makeAny(std::move(prototype)));
  setProperty(*property, contentKey, std::move(content));
  setProperty(owner, name, vtlcmd::makeAny(Orvel::Ptr<Object>(std::move(property))));
}

/// The property of that name if it is of the prototype, else null.
Orvel::Ptr<Object> geoProperty(const Object& owner, Orvel::StringView name,
                               const Object& prototype) {
  Orvel::Ptr<Object> property = objectUnder(owner, name);
  if (property && isOfPrototype(*property, prototype)) return property;
  return {};
}

}  // namespace

void setComponentProperty(Object& object, Orvel::StringView name, std::uint32_t count) {
  setGeoProperty(object, name, getComponentGeoPropPrototype(), countKey, vtlcmd::makeAny(count));
}

void setDataProperty(Object& object, Orvel::StringView name, vtlcmd::Any array,
                     Orvel::StringView kind) {
  setGeoProperty(object, name, getDataGeoPropPrototype(kind), sData, std::move(array));
}

Orvel::Array<Orvel::String> getGeoPropNamesByPrototype(const Object& object,
                                                       const Object& prototype) {
  Orvel::Array<Orvel::String> names;
  for (const Orvel::String& key : propertyKeys(object)) {
    if (geoProperty(object, key, prototype)) names.append(key);
  }
  return names;
}

std::uint32_t getElementCount(const Object& object, Orvel::StringView name) {
  const Orvel::Ptr<Object> property = geoProperty(object, name, *getComponentGeoPropPrototype());
  if (!property) return 0;
  const vtlcmd::Any content = property->propertyByKey(countKey);
  const auto* count = vtlcmd::anyCast<std::uint32_t>(&content);
  return count == nullptr ? 0 : *count;
}

Orvel::Ptr<Object> getDataGeoProperty(const Object& object, Orvel::StringView name) {
  return geoProperty(object, name, *getDataGeoPropPrototype(sGenericDataGeoProp));
}

}  // namespace Vantrel::Geometry

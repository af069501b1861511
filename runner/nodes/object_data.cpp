#include "nodes/object_data.h"

#include "host/imports/vantrel_geometry.h"
#include "host/value_types.h"
#include "orvel_sdk/any_bridge.h"
#include "orvel_sdk/value_factory.h"
#include "text/library_text.h"

namespace vtlcmd::runner {

const Vantrel::Object& objectArgument(const NodeCall& call) {
  const auto& object = Orvel::valueAs<ObjectPtr>(call[0]);
  if (!object) throw NodeError("there is no object");
  return *object;
}

Orvel::Value dataProperty(const Vantrel::Object& object, const Orvel::String& name,
                          const ValueType& type) {
  const Orvel::Ptr<Vantrel::Object> property = Vantrel::Geometry::getDataGeoProperty(object, name);
  if (!property) throw NodeError("the object has no data property " + inQuotes(name.c_str()));
  const Any data = property->propertyByKey(Vantrel::Geometry::sData);
  try {
    return Orvel::fromAny(libraryTypeOf(type), data);
  } catch (const std::invalid_argument&) {
    throw NodeError("the data property " + inQuotes(name.c_str()) + " holds no " + nameOf(type));
  }
}

}  // namespace vtlcmd::runner

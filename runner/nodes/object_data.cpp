#include "nodes/object_data.h"

#include "text/library_text.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/value_factory.h"

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

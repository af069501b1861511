#include "object_report/object_report.h"

#include <sstream>

#include "host/imports/vantrel_geometry.h"
#include "host/value_types.h"

namespace vtlcmd {

namespace Geometry = Vantrel::Geometry;

std::string objectReport(const Orvel::Ptr<const Vantrel::Object>& object) {
  std::ostringstream stream;
  stream << "{\n";
  if (!object) {
    stream << "  No object produced, verify your inputs."
           << "\n";
  } else {
    const auto components = Geometry::getComponentGeoPropPrototype();
    Orvel::Array<Orvel::String> names = Geometry::getGeoPropNamesByPrototype(*object, *components);
    for (const Orvel::String& name : names) {
      stream << "  " << name.c_str() << ": count: " << Geometry::getElementCount(*object, name)
             << "\n";
    }
    const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
    names = Geometry::getGeoPropNamesByPrototype(*object, *data);
    for (const Orvel::String& name : names) {
      const auto property = Geometry::getDataGeoProperty(*object, name);
      printDataProperty(property->propertyByKey(Geometry::sData), stream, name);
    }
  }
  stream << "}";
  return stream.str();
}

std::string objectReportFromAny(const Any& value) {
  const auto* object = anyCast<ObjectPtr>(&value);
  return objectReport(object == nullptr ? ObjectPtr{} : *object);
}

std::string objectReportFromValue(const Orvel::Value& value) {
  return objectReport(value.getOrvelClass().castTo<const Vantrel::Object>());
}

}  // namespace vtlcmd

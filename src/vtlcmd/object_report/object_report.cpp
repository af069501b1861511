#include "vtlcmd/object_report/object_report.h"

#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd {

namespace Geometry = Vantrel::Geometry;

void objectReport(TextBuilder& text, const Orvel::Ptr<const Vantrel::Object>& object) {
  text << "{\n";
  if (!object) {
    text << "  No object produced, verify your inputs."
         << "\n";
  } else {
    const auto components = Geometry::getComponentGeoPropPrototype();
    Orvel::Array<Orvel::String> names = Geometry::getGeoPropNamesByPrototype(*object, *components);
    for (const Orvel::String& name : names) {
      text << "  " << name.c_str() << ": count: " << Geometry::getElementCount(*object, name)
           << "\n";
    }
    const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
    names = Geometry::getGeoPropNamesByPrototype(*object, *data);
    for (const Orvel::String& name : names) {
      const auto property = Geometry::getDataGeoProperty(*object, name);
      printDataProperty(property->propertyByKey(Geometry::sData), text, name);
    }
  }
  text << "}";
}

void objectReportFromAny(TextBuilder& text, const Any& value) {
  const auto* object = anyCast<ObjectPtr>(&value);
  objectReport(text, object == nullptr ? ObjectPtr{} : *object);
}

void objectReportFromValue(TextBuilder& text, const Orvel::Value& value) {
  objectReport(text, value.getOrvelClass().castTo<const Vantrel::Object>());
}

}  // namespace vtlcmd

#include "values/exact_value.h"

#include "host/imports/vantrel_geometry.h"
#include "host/value_types.h"
#include "output/statistics/summary.h"
#include "text/json_writer.h"
#include "text/library_text.h"
#include "values/level_sizes.h"
#include "values/library_array.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner {
namespace {

namespace Geometry = Vantrel::Geometry;

template <typename T>
void writeSingle(JsonWriter& json, const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    json.boolean(value);
  } else if constexpr (std::is_arithmetic_v<T>) {
    json.number(value);
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    json.text(standardText(value));
  } else {
    static_assert(Composite<T>);
    json.open('[');
    for (const auto component : value.components) json.number(component);
    json.close(']');
  }
}

template <typename T>
void writeStatistics(JsonWriter& json, const Orvel::Array<T>& array) {
  if (array.size == 0) return;
  const Summary<T> summary = summarise(array.data, array.size);
  json.key("min");
  writeSingle(json, summary.minimum);
  json.key("max");
  writeSingle(json, summary.maximum);
  json.key("average");
  writeSingle(json, summary.average);
}

/// The properties "sizes" and so on of an array of one level, in an object that is open.
template <typename T>
void writeArrayFacts(JsonWriter& json, const Orvel::Array<T>& array) {
  json.key("sizes");
  json.open('[');
  json.number(array.size);
  json.close(']');
  if constexpr (valueType<T>().arrayClass == ArrayClass::summarised) writeStatistics(json, array);
}

void writeNestedArray(JsonWriter& json, std::uint32_t depth, const Orvel::Value& value) {
  json.key("sizes");
  json.open('[');
  for (const LevelSize& level : levelSizes(value, depth))
    level.size && !level.isRagged ? json.number(*level.size) : json.null();
  json.close(']');
}

template <typename List>
void writeDataProperty(JsonWriter& json, const List& list, const Any& array) {
  forEachRow(list, [&]<typename Row>(const Row& row) {
    const auto* held = anyCast<StoredArray<typename Row::Type, 1>>(&array);
    if (held == nullptr || !*held) return;
    json.key("type");
    json.text("array<" + std::string(row.name) + ">");
    writeArrayFacts(json, **held);
  });
}

void writeObject(JsonWriter& json, const ObjectPtr& object) {
  if (!object) return json.null();
  json.open('{');
  const auto components = Geometry::getComponentGeoPropPrototype();
  for (const Orvel::String& name : Geometry::getGeoPropNamesByPrototype(*object, *components)) {
    json.key(standardText(name));
    json.open('{');
    json.key("count");
    json.number(Geometry::getElementCount(*object, name));
    json.close('}');
  }
  const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
  for (const Orvel::String& name : Geometry::getGeoPropNamesByPrototype(*object, *data)) {
    const auto property = Geometry::getDataGeoProperty(*object, name);
    const Any array = property->propertyByKey(Geometry::sData);
    json.key(standardText(name));
    json.open('{');
    writeDataProperty(json, registeredTypes, array);
    writeDataProperty(json, reportOnlyTypes, array);
    json.close('}');
  }
  json.close('}');
}

}  // namespace

std::string exactValue(const ValueType& type, const Orvel::Value& value) {
  JsonWriter json;
  if (type.depth > 0) json.open('{');
  if (type.depth > 1) writeNestedArray(json, type.depth, value);
  const bool isRegistered = withTypeNamed(registeredTypes, type.element, [&]<typename T>() {
    if (type.depth == 1) {
      writeArrayFacts(json, arrayIn<T>(value));
    } else if (type.depth == 0) {
      if constexpr (std::is_same_v<T, ObjectPtr>) {
        writeObject(json, Orvel::valueAs<T>(value));
      } else {
        writeSingle(json, Orvel::valueAs<T>(value));
      }
    }
  });
  if (type.depth > 0) {
    json.close('}');
  } else if (!isRegistered) {
    json.null();
  }
  return json.json();
}

}  // namespace vtlcmd::runner

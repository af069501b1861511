#include "values/exact_value.h"

#include <algorithm>

#include "text/json_writer.h"
#include "text/library_text.h"
#include "values/level_sizes.h"
#include "values/library_array.h"
#include "values/type_dispatch.h"
#include "values/value_type.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/output/statistics/summary.h"

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

void writeObject(JsonWriter& json, const ObjectPtr& object, std::uint64_t elements);

template <typename T>
void writeValue(JsonWriter& json, const T& value, std::uint64_t elements) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    writeObject(json, value, elements);
  } else {
    writeSingle(json, value);
  }
}

template <typename T>
void writeElements(JsonWriter& json, const Orvel::Array<T>& array, std::uint64_t elements) {
  json.open('[');
  for (std::uint64_t i = 0; i < std::min(array.size, elements); ++i)
    writeValue(json, array[i], elements);
  json.close(']');
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
void writeArrayFacts(JsonWriter& json, const Orvel::Array<T>& array, std::uint64_t elements) {
  json.key("sizes");
  json.open('[');
  json.number(array.size);
  json.close(']');
  if constexpr (valueType<T>().arrayClass == ArrayClass::summarised) writeStatistics(json, array);
  if (elements == 0) return;
  json.key("elements");
  writeElements(json, array, elements);
}

void writeNestedElements(JsonWriter& json, const ValueType& type, const Orvel::Value& value,
                         std::uint64_t elements) {
  if (type.depth == 1) {
    withTypeNamed(registeredTypes, type.element,
                  [&]<typename T>() { writeElements(json, arrayIn<T>(value), elements); });
    return;
  }
  Orvel::ArrayValue array(value);
  json.open('[');
  for (std::uint64_t i = 0; i < std::min(array.size(), elements); ++i)
    writeNestedElements(json, elementOf(type), array.getElement(i), elements);
  json.close(']');
}

void writeNestedArray(JsonWriter& json, const ValueType& type, const Orvel::Value& value,
                      std::uint64_t elements) {
  json.key("sizes");
  json.open('[');
  for (const LevelSize& level : levelSizes(value, type.depth))
    level.size && !level.isRagged ? json.number(*level.size) : json.null();
  json.close(']');
  if (elements == 0) return;
  json.key("elements");
  writeNestedElements(json, type, value, elements);
}

template <typename List>
void writeDataProperty(JsonWriter& json, const List& list, const Any& array,
                       std::uint64_t elements) {
  forEachRow(list, [&]<typename Row>(const Row& row) {
    const auto* held = anyCast<StoredArray<typename Row::Type, 1>>(&array);
    if (held == nullptr || !*held) return;
    json.key("type");
    json.text(nameOf(ValueType{row.name, 1}));
    writeArrayFacts(json, **held, elements);
  });
}

void writeObject(JsonWriter& json, const ObjectPtr& object, std::uint64_t elements) {
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
    writeDataProperty(json, registeredTypes, array, elements);
    writeDataProperty(json, reportOnlyTypes, array, elements);
    json.close('}');
  }
  json.close('}');
}

}  // namespace

std::string exactValue(const ValueType& type, const Orvel::Value& value, std::uint64_t elements) {
  JsonWriter json;
  if (type.depth > 0) json.open('{');
  if (type.depth > 1) writeNestedArray(json, type, value, elements);
  const bool isRegistered = withTypeNamed(registeredTypes, type.element, [&]<typename T>() {
    if (type.depth == 1) {
      writeArrayFacts(json, arrayIn<T>(value), elements);
    } else if (type.depth == 0) {
      writeValue(json, Orvel::valueAs<T>(value), elements);
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

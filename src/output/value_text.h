#pragma once

#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>

#include "host/imports/orvel_values.h"
#include "host/value_types.h"
#include "object_report/object_report.h"
#include "output/number_text.h"

/// The text of one value that is no array: numbers as number text, vectors as {x, y}, strings
/// between double quotes with nothing escaped, objects as their report.

namespace vtlcmd {

/// The same for a value in hand; of a string the text up to its first NUL.
template <Registered T>
std::string textOf(const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    return value ? "true" : "false";
  } else if constexpr (std::is_arithmetic_v<T>) {
    return numberText(value);
  } else if constexpr (requires { T::componentCount; }) {
    std::ostringstream stream;
    const char* separator = "{";
    for (const auto component : value.components) {
      stream << separator << component;
      separator = ", ";
    }
    stream << "}";
    return stream.str();
  } else {
    return std::string("\"") + value.c_str() + "\"";
  }
}

/// Never fails: a null Any, an empty one or one of another type reads as the type's zero.
template <Registered T>
std::string anyToText(const Any* any) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return any == nullptr ? objectReport({}) : objectReportFromAny(*any);
  } else {
    const T* value = anyCast<T>(any);
    return value == nullptr ? textOf(T{}) : textOf(*value);
  }
}

/// The text of a struct value, each member by its own type: float, double and int are written,
/// any other type leaves nothing but the separator behind the member before it.
std::string structValueToText(const Orvel::Value& value);

/// The value must have the type that T stands for.
template <Registered T>
std::string valueToText(const Orvel::Value& value) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return objectReportFromValue(value);
  } else if constexpr (requires { T::componentCount; }) {
    return structValueToText(value);
  } else {
    using Value = Orvel::Value;
    constexpr std::tuple getters{&Value::getBool,   &Value::getInt,   &Value::getUInt,
                                 &Value::getLong,   &Value::getULong, &Value::getFloat,
                                 &Value::getDouble, &Value::getString};
    return textOf((value.*std::get<T (Value::*)() const>(getters))());
  }
}

}  // namespace vtlcmd

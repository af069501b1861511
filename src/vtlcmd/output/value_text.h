#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/object_report/object_report.h"
#include "vtlcmd/text/text_builder.h"

/// The text of one value that is no array, appended to `text`: numbers as number text, vectors as
/// {x, y}, strings between double quotes with nothing escaped, objects as their report.

namespace vtlcmd {

/// Of a value in hand; of a string the text up to its first NUL.
template <Registered T>
void valueInHandToText(TextBuilder& text, const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    text << (value ? "true" : "false");
  } else if constexpr (std::is_arithmetic_v<T>) {
    text << value;
  } else if constexpr (requires { T::componentCount; }) {
    std::string_view separator = "{";
    for (const auto component : value.components) {
      text << separator << component;
      separator = ", ";
    }
    text << "}";
  } else {
    text << "\"" << value.c_str() << "\"";
  }
}

/// Never fails: a null Any, an empty one or one of another type reads as the type's zero.
template <Registered T>
void anyToText(TextBuilder& text, const Any* any) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    any == nullptr ? objectReport(text, {}) : objectReportFromAny(text, *any);
  } else {
    const T* value = anyCast<T>(any);
    value == nullptr ? valueInHandToText(text, T{}) : valueInHandToText(text, *value);
  }
}

/// Of a struct value, each member by its own type: float, double and int are written, any other
/// type leaves nothing but the separator behind the member before it.
void structValueToText(TextBuilder& text, const Orvel::Value& value);

/// How the type library gives out a value of type T.
template <typename T>
inline constexpr auto getter = nullptr;
template <>
inline constexpr auto getter<bool> = &Orvel::Value::getBool;
template <>
inline constexpr auto getter<float> = &Orvel::Value::getFloat;
template <>
inline constexpr auto getter<double> = &Orvel::Value::getDouble;
template <>
inline constexpr auto getter<std::int32_t> = &Orvel::Value::getInt;
template <>
inline constexpr auto getter<std::uint32_t> = &Orvel::Value::getUInt;
template <>
inline constexpr auto getter<std::int64_t> = &Orvel::Value::getLong;
template <>
inline constexpr auto getter<std::uint64_t> = &Orvel::Value::getULong;
template <>
inline constexpr auto getter<Orvel::String> = &Orvel::Value::getString;

/// The value must have the type that T stands for.
template <Registered T>
void valueToText(TextBuilder& text, const Orvel::Value& value) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    objectReportFromValue(text, value);
  } else if constexpr (requires { T::componentCount; }) {
    structValueToText(text, value);
  } else {
    valueInHandToText(text, (value.*getter<T>)());
  }
}

}  // namespace vtlcmd

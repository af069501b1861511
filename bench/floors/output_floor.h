#pragma once

#include <string_view>
#include <type_traits>

#include "floors/floor_record.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::bench {

/// What no way of reporting a single value held in an Any can leave out.
template <Registered T>
__attribute__((noinline)) bool reportAnyFloor(const Any& value, const OutputValueData& data,
                                              FloorRecord& record) {
  if (!record.tables.byTag.contains(&value.type())) return false;
  record.report(data.portName->c_str(), valueType<T>().name, valueText<T>(*anyCast<T>(&value)));
  return true;
}

/// The members of a vector, each asked for by its name and then for its type.
template <typename Vector>
ShortText structText(const Orvel::Value& value) {
  using Component = typename Vector::ComponentType;
  const Orvel::StructValue structValue(value);
  const Orvel::StructType type = structValue.getType();
  const auto end = type.end();
  ShortText text;
  std::string_view separator = "{";
  for (auto position = type.begin(); position != end; position++) {
    const Orvel::StructValue::Member member = structValue[position->getName()];
    const Orvel::String typeName = member.getType().getFullyQualifiedName();
    text.append(separator);
    separator = ", ";
    if (typeName == "float") {
      text.append(member.getFloat());
    } else if (std::is_same_v<Component, double> && typeName == "double") {
      text.append(member.getDouble());
    }
  }
  text.append(std::string_view("}"));
  return text;
}

template <Registered T>
T getFrom(const Orvel::Value& value) {
  if constexpr (std::is_same_v<T, bool>) return value.getBool();
  if constexpr (std::is_same_v<T, std::int32_t>) return value.getInt();
  if constexpr (std::is_same_v<T, std::uint32_t>) return value.getUInt();
  if constexpr (std::is_same_v<T, std::int64_t>) return value.getLong();
  if constexpr (std::is_same_v<T, std::uint64_t>) return value.getULong();
  if constexpr (std::is_same_v<T, float>) return value.getFloat();
  if constexpr (std::is_same_v<T, double>) return value.getDouble();
  if constexpr (std::is_same_v<T, Orvel::String>) return value.getString();
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return value.getOrvelClass().template castTo<Vantrel::Object>();
  }
}

/// The same for a single value of the type library.
template <Registered T>
__attribute__((noinline)) bool reportValueFloor(const Orvel::Value& value,
                                                const OutputValueData& data, FloorRecord& record) {
  const Orvel::Type type = value.getType();
  if (type.getTypeKind() == Orvel::TypeKind::array) return false;
  const Orvel::String handlerName = type.getFullyQualifiedName();
  if (!record.tables.byName.contains(handlerName)) return false;

  const Orvel::String typeName = value.getType().getFullyQualifiedName();
  const char* portName = data.portName->c_str();
  if constexpr (requires { T::componentCount; }) {
    record.report(portName, typeName.c_str(), structText<T>(value));
  } else {
    record.report(portName, typeName.c_str(), valueText<T>(getFrom<T>(value)));
  }
  return true;
}

}  // namespace vtlcmd::bench

#pragma once

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "floors/floor_record.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_types.h"

namespace vtlcmd::bench {

/// Reads a good text with the function of the C library that the type's texts are defined by.
template <typename Number>
Number readNumber(const char* text) {
  errno = 0;
  char* end = nullptr;
  Number number;
  if constexpr (std::is_floating_point_v<Number>) {
    number = static_cast<Number>(std::strtod(text, &end));
  } else if constexpr (std::is_signed_v<Number>) {
    number = static_cast<Number>(std::strtoll(text, &end, 10));
  } else {
    number = static_cast<Number>(std::strtoull(text, &end, 10));
  }
  while (std::isspace(static_cast<unsigned char>(*end)) != 0) ++end;
  if (errno != 0 || *end != '\0') std::abort();
  return number;
}

/// A good text's value.
template <Registered T>
T readText(const Orvel::String& text) {
  if constexpr (std::is_same_v<T, bool>) {
    return text == "true";
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return text;
  } else if constexpr (std::is_arithmetic_v<T>) {
    return readNumber<T>(text.c_str());
  } else {
    const std::string whole = text.c_str();
    std::vector<std::string> pieces;
    pieces.reserve(T::componentCount);
    for (std::size_t begin = 0; begin <= whole.size();) {
      const std::size_t end = std::min(whole.find(',', begin), whole.size());
      pieces.emplace_back(whole, begin, end - begin);
      begin = end + 1;
    }
    T vector;
    for (std::size_t i = 0; i < T::componentCount; ++i) {
      vector.components[i] = readNumber<typename T::ComponentType>(pieces[i].c_str());
    }
    return vector;
  }
}

template <Registered T>
void store(Any& result, T value) {
  Any temporary = makeAny(std::move(value));
  swap(result, temporary);
}

/// What no way of setting a plain input port can leave out: the calls into the closed libraries
/// and the look-ups, the parse, the messages and the Any. The port has a good text; one of type
/// Object has none.
template <Registered T>
__attribute__((noinline)) bool setInputFloor(const Orvel::Type& type, Any& value,
                                             const InputValueData& data, FloorRecord& record) {
  if (type.getTypeKind() == Orvel::TypeKind::array) return false;
  const Orvel::String handlerName = type.getFullyQualifiedName();
  if (!record.tables.byName.contains(handlerName)) return false;

  const PortValueEntry* entry = data.context->inputValues->find(*data.portName);
  const Orvel::String typeName = type.getFullyQualifiedName();
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    record.add(levelVerbose, concatenate({"No value was provided to vtlcmd for input port '",
                                          data.portName->c_str(), "' (", typeName.c_str(),
                                          "). A default value will be used."}));
    store<T>(value, Vantrel::createObject());
  } else {
    store(value, readText<T>(entry->text));
  }
  record.add(levelVerbose,
             concatenate({"Set input port '", data.portName->c_str(), "': (", typeName.c_str(),
                          ") ", valueText<T>(*anyCast<T>(&value))}));
  return value.holdsValue();
}

}  // namespace vtlcmd::bench

#pragma once

#include <string>
#include <string_view>

#include "nodes/node_operation.h"
#include "nodes/operand.h"

namespace vtlcmd::runner {

/// The component type of a vector type, empty for anything else.
inline std::string_view componentOf(const std::string& element) {
  std::string_view component;
  withTypeNamed(registeredTypes, element, [&]<typename T>() {
    if constexpr (Composite<T>) component = valueType<typename T::ComponentType>().name;
  });
  return component;
}

/// The type of a vector's components, an array where there is one of vectors.
inline ValueType componentType(const NodeTypes& types) {
  return {std::string(componentOf(types[0].element)), types[0].depth};
}

/// Numbers, single or in an array, as vectors T of that many of them where T is a vector of such
/// numbers; any other value as it is.
template <typename T>
Orvel::Value broadcast(const Orvel::Value& value, const ValueType& type) {
  if constexpr (Composite<T>) {
    using Component = typename T::ComponentType;
    if (type.element == valueType<Component>().name) {
      const Operand<Component> numbers(value, type.depth > 0);
      return singleOrArray<T>(numbers.size(), [&](std::uint64_t i) {
        T vector;
        vector.components.fill(numbers[i]);
        return vector;
      });
    }
  }
  return value;
}

}  // namespace vtlcmd::runner

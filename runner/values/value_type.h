#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vtlcmd/host/imports/orvel_types.h"

namespace vtlcmd::runner {

/// The type of a value in a graph, taken apart: the innermost element's name and the array levels
/// round it.
struct ValueType {
  std::string element;
  std::uint32_t depth = 0;

  bool operator==(const ValueType&) const = default;
};

/// Reads `array<int>`. Throws std::invalid_argument that tells the text and near misses.
ValueType parseValueType(std::string_view text);

/// `array<int>`, as the type library spells it.
std::string nameOf(const ValueType& type);

Orvel::Type libraryTypeOf(const ValueType& type);

inline ValueType arrayOf(ValueType element) {
  return {std::move(element.element), element.depth + 1};
}
inline ValueType elementOf(ValueType array) { return {std::move(array.element), array.depth - 1}; }

}  // namespace vtlcmd::runner

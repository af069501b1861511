#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <type_traits>

#include "host/imports/orvel_array.h"
#include "host/imports/orvel_string.h"
#include "host/value_types.h"
#include "output/statistics/summary.h"

namespace vtlcmd {

template <typename T>
concept Summarised = requires {
  requires Tagged<T, 1>;
  requires valueType<T>()
  .arrayClass == ArrayClass::summarised;
};

namespace array_statistics {

template <typename T>
void writeValue(std::ostream& stream, T number) {
  stream << number;
}

template <typename Component, std::size_t Count>
void writeValue(std::ostream& stream, const Math::Vector<Component, Count>& vector) {
  const char* separator = "{";
  for (const Component component : vector.components) {
    stream << separator << component << "f";
    separator = ", ";
  }
  stream << "}";
}

template <typename T>
void writeLine(std::ostream& stream, const char* word, const T& value) {
  stream << "     " << word << ": ";
  writeValue(stream, value);
  stream << "\n";
}

}  // namespace array_statistics

/// Writes the block of count, minimum, maximum and average over all elements, in one pass without
/// allocation, to a stream in its default state:
///
///   (3 float)
///     {
///        min: 1.5
///        max: 4
///        avg: 2.66667
///     }
template <Summarised T>
void printArrayStatistics(std::ostream& stream, const Orvel::Array<T>& array) {
  // The blank in front of this one head is wanted.
  if constexpr (std::is_same_v<T, bool>) stream << " ";
  stream << "(" << array.size << " " << valueType<T>().name << ")\n  {\n";
  if (array.size == 0) {
    stream << "empty array...";
  } else {
    const Summary<T> summary = summarise(array.data, array.size);
    array_statistics::writeLine(stream, "min", summary.minimum);
    array_statistics::writeLine(stream, "max", summary.maximum);
    array_statistics::writeLine(stream, "avg", summary.average);
  }
  stream << "  }";
}

/// The block as a line of the object report, behind the property's name. Always true: it printed.
template <Summarised T>
bool printNamedArrayStatistics(std::ostream& stream, const Orvel::String& name,
                               const Orvel::Array<T>& array) {
  stream << "  " << name.c_str() << ": ";
  printArrayStatistics(stream, array);
  stream << "\n";
  return true;
}

}  // namespace vtlcmd

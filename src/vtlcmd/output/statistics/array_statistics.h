#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/output/statistics/summary.h"
#include "vtlcmd/text/text_builder.h"

namespace vtlcmd {

namespace array_statistics {

template <typename T>
void writeValue(TextBuilder& text, T number) {
  text << number;
}

template <typename Component, std::size_t Count>
void writeValue(TextBuilder& text, const Math::Vector<Component, Count>& vector) {
  const char* separator = "{";
  for (const Component component : vector.components) {
    text << separator << component << "f";
    separator = ", ";
  }
  text << "}";
}

template <typename T>
void writeLine(TextBuilder& text, const char* word, const T& value) {
  text << "     " << word << ": ";
  writeValue(text, value);
  text << "\n";
}

}  // namespace array_statistics

/// Appends the block of count, minimum, maximum and average over all elements:
///
///   (3 float)
///     {
///        min: 1.5
///        max: 4
///        avg: 2.66667
///     }
template <Summarised T>
void printArrayStatistics(TextBuilder& text, const Orvel::Array<T>& array) {
  // The blank in front of this one head is wanted.
  if constexpr (std::is_same_v<T, bool>) text << " ";
  text << "(" << array.size << " " << valueType<T>().name << ")\n  {\n";
  if (array.size == 0) {
    text << "empty array...";
  } else {
    const Summary<T> summary = summarise(array.data, array.size);
    array_statistics::writeLine(text, "min", summary.minimum);
    array_statistics::writeLine(text, "max", summary.maximum);
    array_statistics::writeLine(text, "avg", summary.average);
  }
  text << "  }";
}

/// The block as a line of the object report, behind the property's name. Always true: it printed.
template <Summarised T>
bool printNamedArrayStatistics(TextBuilder& text, const Orvel::String& name,
                               const Orvel::Array<T>& array) {
  text << "  " << name.c_str() << ": ";
  printArrayStatistics(text, array);
  text << "\n";
  return true;
}

}  // namespace vtlcmd

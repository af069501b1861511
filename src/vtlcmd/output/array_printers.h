#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/output/array_text.h"
#include "vtlcmd/output/statistics/array_statistics.h"
#include "vtlcmd/output/value_text.h"

/// The text of arrays. The class of the element type decides about the lowest level: summarised,
/// listed up to the logger's limit, or refused; every level above it is a list up to the limit. A
/// level that shows nothing is a short note.

namespace vtlcmd {

template <Registered T>
Orvel::String arrayTypeName(std::uint32_t levels) {
  return arrayTypeName(valueType<T>().name, levels);
}

/// Of the array of T at a rank of 1 to 3 that the Any holds; neither it nor an array inside it may
/// be null. Heads call the elements by T's name at every level.
template <Registered T, std::uint32_t Rank>
void printArray(TextBuilder& text, const Any* any, VtlCmdLogger* logger) {
  constexpr ArrayClass arrayClass = valueType<T>().arrayClass;
  constexpr const char* typeWord = valueType<T>().name;
  const StoredArray<T, Rank> array = *anyCast<StoredArray<T, Rank>>(any);
  const std::uint64_t shown = shownOf(array->size, *logger);
  if (shown == 0) {
    writeShortNote(text, array->size, typeWord);
  } else if constexpr (Rank == 1 && arrayClass == ArrayClass::summarised) {
    printArrayStatistics(text, *array);
  } else if constexpr (Rank == 1 && arrayClass == ArrayClass::refused) {
    writeRefusal(text, typeWord);
  } else {
    writeList(text, shown, array->size, typeWord, [&](std::uint64_t i) {
      const Any element = makeAny(array->data[i]);
      if constexpr (Rank == 1) {
        anyToText<T>(text, &element);
      } else {
        printArray<T, Rank - 1>(text, &element, logger);
      }
    });
  }
}

/// Of a value with `arrayDepth` array levels around T, without a bound on the depth; 0 is the text
/// of a single value. Heads call the elements by the type library's name of the level below.
template <Registered T>
void printArrayValue(TextBuilder& text, const Orvel::Value& value, std::size_t arrayDepth,
                     VtlCmdLogger* logger) {
  constexpr ArrayClass arrayClass = valueType<T>().arrayClass;
  if (arrayDepth == 0) {
    valueToText<T>(text, value);
    return;
  }
  const Orvel::String typeWord =
      Orvel::ArrayType(value.getType()).getElementType().getFullyQualifiedName();
  Orvel::ArrayValue array(value);
  const std::uint64_t total = array.size();
  const std::uint64_t shown = shownOf(total, *logger);
  if (shown == 0) {
    writeShortNote(text, total, typeWord.c_str());
    return;
  }
  if constexpr (arrayClass == ArrayClass::summarised) {
    if (arrayDepth == 1) {
      if (typeWord == valueType<T>().name) printArrayStatistics(text, *value.getArray<T>());
      return;
    }
  } else if constexpr (arrayClass == ArrayClass::refused) {
    if (arrayDepth == 1) {
      writeRefusal(text, typeWord.c_str());
      return;
    }
  }
  writeList(text, shown, total, typeWord.c_str(), [&](std::uint64_t i) {
    printArrayValue<T>(text, array.getElement(i), arrayDepth - 1, logger);
  });
}

}  // namespace vtlcmd

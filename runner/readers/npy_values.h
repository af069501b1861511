#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

#include "readers/npy_numbers.h"
#include "values/library_array.h"
#include "vtlcmd/host/value_types.h"

/// Array values from the numbers of a file. Their arrays are made with room for all numbers, which
/// then are read once, from front to back, so that a large file needs no memory besides its values.

namespace vtlcmd::runner {

struct NpyLayout {
  /// One to three dimensions, which become arrays.
  std::vector<std::uint64_t> shape;
  /// Numbers that an element consists of: a vector's, which are a dimension more in the file, or 1.
  std::uint64_t components;
  /// The first dimension varies fastest in the file, not the last.
  bool fortranOrder;
};

/// A value and the memory of its innermost arrays, from the first to the last, with nothing in it.
struct NpyRows {
  Orvel::Value value;
  std::vector<void*> memory;
};

template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> makeLevels(std::span<const std::uint64_t> shape, std::vector<void*>& memory) {
  if constexpr (Rank == 1) {
    static_assert(std::is_trivially_copyable_v<T>);
    Orvel::Array<T> row = arrayWithRoom<T>(shape[0]);
    row.size = shape[0];
    memory.push_back(row.data);
    return shareArray(std::move(row));
  } else {
    return shareArray(generateArray<StoredArray<T, Rank - 1>>(shape[0], [&](std::uint64_t) {
      return makeLevels<T, Rank - 1>(shape.subspan(1), memory);
    }));
  }
}

template <typename T>
Orvel::Value makeNested(std::span<const std::uint64_t> shape, std::vector<void*>& memory) {
  switch (shape.size()) {
    case 1:
      return Orvel::makeValue(makeLevels<T, 1>(shape, memory));
    case 2:
      return Orvel::makeValue(makeLevels<T, 2>(shape, memory));
    default:
      return Orvel::makeValue(makeLevels<T, 3>(shape, memory));
  }
}

/// An array of one to three levels, with elements of T. Throws FrameAbandoned and std::bad_alloc.
template <typename T>
NpyRows makeRows(std::span<const std::uint64_t> shape) {
  std::vector<void*> memory;
  const Orvel::Value value = makeNested<T>(shape, memory);
  return {value, std::move(memory)};
}

using MakeRows = NpyRows (*)(std::span<const std::uint64_t> shape);

template <typename Stored, typename Number>
void fillInOrder(const std::vector<void*>& rows, const NpyLayout& layout, NpyNumbers& numbers) {
  const std::uint64_t length = layout.shape.back() * layout.components;
  for (void* row : rows) {
    if constexpr (std::is_same_v<Stored, Number> && !std::is_same_v<Stored, bool>) {
      numbers.fill<Stored>({static_cast<unsigned char*>(row), length * sizeof(Number)});
    } else {
      auto* places = static_cast<Number*>(row);
      for (std::uint64_t i = 0; i < length; ++i) places[i] = numbers.next<Stored, Number>();
    }
  }
}

/// The rows stand with the last but one dimension varying fastest.
template <typename Stored, typename Number>
void fillInFortranOrder(const std::vector<void*>& rows, const NpyLayout& layout,
                        NpyNumbers& numbers) {
  const std::span<const std::uint64_t> shape = layout.shape;
  const std::uint64_t outer = shape.size() > 1 ? shape[0] : 1;
  const std::uint64_t middle = shape.size() > 2 ? shape[1] : 1;
  for (std::uint64_t component = 0; component < layout.components; ++component) {
    for (std::uint64_t k = 0; k < shape.back(); ++k) {
      const std::uint64_t place = k * layout.components + component;
      for (std::uint64_t j = 0; j < middle; ++j) {
        for (std::uint64_t i = 0; i < outer; ++i)
          static_cast<Number*>(rows[i * middle + j])[place] = numbers.next<Stored, Number>();
      }
    }
  }
}

/// Fills the rows with the numbers of a file that has them as Stored. Throws ReadError when there
/// are fewer, and FrameAbandoned.
template <typename Stored, typename Number>
void fillRows(const std::vector<void*>& rows, const NpyLayout& layout, NpyNumbers& numbers) {
  // Beside an empty dimension another one may be of any length.
  if (rows.empty()) return;
  const auto fill =
      layout.fortranOrder ? fillInFortranOrder<Stored, Number> : fillInOrder<Stored, Number>;
  fill(rows, layout, numbers);
}

}  // namespace vtlcmd::runner

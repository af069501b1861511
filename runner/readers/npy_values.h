#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <type_traits>
#include <vector>

#include "readers/npy_numbers.h"
#include "values/library_array.h"
#include "vtlcmd/host/value_types.h"

/// Array values from the numbers of a file, which are read once, from front to back, so that a
/// large file needs no memory besides its values.

namespace vtlcmd::runner {

struct NpyLayout {
  /// One to three dimensions, which become arrays. A vector's components are a dimension more.
  std::vector<std::uint64_t> shape;
  /// The first dimension varies fastest in the file, not the last.
  bool fortranOrder;
};

/// What an element consists of: itself, or a vector's components.
template <typename T>
struct NumberIn {
  using Type = T;
};
template <typename T>
requires requires { T::componentCount; }
struct NumberIn<T> {
  using Type = typename T::ComponentType;
};
template <typename T>
using NumberOf = typename NumberIn<T>::Type;

/// Gives the rows of the innermost level, of so many elements, from the first to the last.
template <typename T>
using MakeRow = std::function<Orvel::Ptr<Orvel::Array<T>>(std::uint64_t count)>;

template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> nestRows(std::span<const std::uint64_t> shape, const MakeRow<T>& makeRow) {
  if constexpr (Rank == 1) {
    return makeRow(shape[0]);
  } else {
    return shareArray(generateArray<StoredArray<T, Rank - 1>>(
        shape[0], [&](std::uint64_t) { return nestRows<T, Rank - 1>(shape.subspan(1), makeRow); }));
  }
}

/// An array of one to three levels.
template <typename T>
Orvel::Value nestedValue(std::span<const std::uint64_t> shape, const MakeRow<T>& makeRow) {
  switch (shape.size()) {
    case 1:
      return Orvel::makeValue(nestRows<T, 1>(shape, makeRow));
    case 2:
      return Orvel::makeValue(nestRows<T, 2>(shape, makeRow));
    default:
      return Orvel::makeValue(nestRows<T, 3>(shape, makeRow));
  }
}

template <typename Stored, typename T>
T nextElement(NpyNumbers& numbers) {
  if constexpr (requires { T::componentCount; }) {
    T vector;
    for (auto& component : vector.components) component = numbers.next<Stored, NumberOf<T>>();
    return vector;
  } else {
    return numbers.next<Stored, T>();
  }
}

/// A row that stands in the file as a whole.
template <typename Stored, typename T>
Orvel::Array<T> nextRow(std::uint64_t count, NpyNumbers& numbers) {
  if constexpr (std::is_same_v<Stored, NumberOf<T>> && !std::is_same_v<Stored, bool>) {
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) % sizeof(Stored) == 0);
    Orvel::Array<T> row = arrayWithRoom<T>(count);
    numbers.fill<Stored>({reinterpret_cast<unsigned char*>(row.data), count * sizeof(T)});
    row.size = count;
    return row;
  } else {
    return generateArray<T>(count, [&](std::uint64_t) { return nextElement<Stored, T>(numbers); });
  }
}

/// Fills rows in the order of the first dimension varying fastest. They stand with the last but one
/// dimension varying fastest.
template <typename Stored, typename T>
void fillInFortranOrder(const std::vector<T*>& rows, std::span<const std::uint64_t> shape,
                        NpyNumbers& numbers) {
  const std::uint64_t outer = shape.size() > 1 ? shape[0] : 1;
  const std::uint64_t middle = shape.size() > 2 ? shape[1] : 1;
  const auto fill = [&](auto setNext) {
    for (std::uint64_t k = 0; k < shape.back(); ++k) {
      for (std::uint64_t j = 0; j < middle; ++j) {
        for (std::uint64_t i = 0; i < outer; ++i) setNext(rows[i * middle + j][k]);
      }
    }
  };
  if constexpr (requires { T::componentCount; }) {
    for (std::size_t c = 0; c < T::componentCount; ++c)
      fill([&](T& element) { element.components[c] = numbers.next<Stored, NumberOf<T>>(); });
  } else {
    fill([&](T& element) { element = numbers.next<Stored, T>(); });
  }
}

/// An array of elements T, whose numbers the file has as Stored.
template <typename Stored, typename T>
Orvel::Value buildNpyValue(const NpyLayout& layout, NpyNumbers& numbers) {
  if (!layout.fortranOrder) {
    return nestedValue<T>(layout.shape, [&](std::uint64_t count) {
      return shareArray(nextRow<Stored, T>(count, numbers));
    });
  }
  std::vector<T*> rows;
  Orvel::Value array = nestedValue<T>(layout.shape, [&](std::uint64_t count) {
    Orvel::Array<T> row = generateArray<T>(count, [](std::uint64_t) { return T{}; });
    rows.push_back(row.data);
    return shareArray(std::move(row));
  });
  // The value shares the rows.
  if (!rows.empty()) fillInFortranOrder<Stored>(rows, layout.shape, numbers);
  return array;
}

}  // namespace vtlcmd::runner

#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <span>
#include <type_traits>
#include <vector>

#include "host/value_types.h"
#include "values/library_array.h"

/// Array values from the numbers of a file, which are read once, from front to back, so that a
/// large file needs no memory besides its values.

namespace vtlcmd::runner {

/// The numbers of a file in their order there. The caller knows how many there are.
class NpyNumbers {
 public:
  /// `consumed` may be empty; it is told how many bytes of the file are done with.
  NpyNumbers(std::span<const unsigned char> file, std::size_t offset, bool swapped,
             const std::function<void(std::size_t)>& consumed)
      : file_(file), offset_(offset), swapped_(swapped), consumed_(consumed) {}

  template <typename T>
  T next() {
    if (offset_ - told_ >= stretch) tell();
    const unsigned char* const source = file_.data() + offset_;
    offset_ += sizeof(T);
    if constexpr (std::is_same_v<T, bool>) {
      return *source != 0;
    } else {
      std::array<unsigned char, sizeof(T)> bytes;
      std::memcpy(bytes.data(), source, sizeof(T));
      if (swapped_) std::reverse(bytes.begin(), bytes.end());
      return std::bit_cast<T>(bytes);
    }
  }

 private:
  static constexpr std::size_t stretch = std::size_t{16} << 20U;

  void tell() {
    told_ = offset_;
    if (consumed_) consumed_(offset_);
  }

  std::span<const unsigned char> file_;
  std::size_t offset_;
  bool swapped_;
  const std::function<void(std::size_t)>& consumed_;
  std::size_t told_ = 0;
};

struct NpyLayout {
  /// One to three dimensions, which become arrays. A vector's components are a dimension more.
  std::vector<std::uint64_t> shape;
  /// The first dimension varies fastest in the file, not the last.
  bool fortranOrder;
};

/// An array of `shape.size() == Rank` levels; `makeRow` gives those of the innermost level, from
/// the first to the last.
template <typename T, std::uint32_t Rank, typename MakeRow>
StoredArray<T, Rank> nestRows(std::span<const std::uint64_t> shape, MakeRow& makeRow) {
  if constexpr (Rank == 1) {
    return makeRow(shape[0]);
  } else {
    return shareArray(generateArray<StoredArray<T, Rank - 1>>(
        shape[0], [&](std::uint64_t) { return nestRows<T, Rank - 1>(shape.subspan(1), makeRow); }));
  }
}

template <typename T>
T nextElement(NpyNumbers& numbers) {
  if constexpr (requires { T::componentCount; }) {
    T vector;
    for (auto& component : vector.components) component = numbers.next<typename T::ComponentType>();
    return vector;
  } else {
    return numbers.next<T>();
  }
}

/// Fills rows in the order of the first dimension varying fastest. They stand with the last but one
/// dimension varying fastest.
template <typename T>
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
      fill([&](T& element) {
        element.components[c] = nextElement<typename T::ComponentType>(numbers);
      });
  } else {
    fill([&](T& element) { element = nextElement<T>(numbers); });
  }
}

template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> buildNpyArray(const NpyLayout& layout, NpyNumbers& numbers) {
  if (!layout.fortranOrder) {
    const auto makeRow = [&](std::uint64_t count) {
      return shareArray(
          generateArray<T>(count, [&](std::uint64_t) { return nextElement<T>(numbers); }));
    };
    return nestRows<T, Rank>(layout.shape, makeRow);
  }
  std::vector<T*> rows;
  const auto makeRow = [&](std::uint64_t count) {
    Orvel::Array<T> row = generateArray<T>(count, [](std::uint64_t) { return T{}; });
    rows.push_back(row.data);
    return shareArray(std::move(row));
  };
  StoredArray<T, Rank> array = nestRows<T, Rank>(layout.shape, makeRow);
  if (!rows.empty()) fillInFortranOrder(rows, layout.shape, numbers);
  return array;
}

template <typename T>
Orvel::Value buildNpyValue(const NpyLayout& layout, NpyNumbers& numbers) {
  switch (layout.shape.size()) {
    case 1:
      return Orvel::makeValue(buildNpyArray<T, 1>(layout, numbers));
    case 2:
      return Orvel::makeValue(buildNpyArray<T, 2>(layout, numbers));
    default:
      return Orvel::makeValue(buildNpyArray<T, 3>(layout, numbers));
  }
}

}  // namespace vtlcmd::runner

#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/imports/api.h"

namespace Orvel {

namespace Internal {

/// What the library's allocator is told of an element, in bytes; the alignment is a power of two.
/// A constant, whatever block was allocated with it.
class ORVEL_CORE_API UntypedTypeRep {
 public:
  constexpr UntypedTypeRep(std::uint64_t size, std::uint64_t alignment) noexcept
      : elementSize(size), elementAlignment(alignment) {}

  /// A raw block for `count` elements, at least one; the caller's until it is given back. Throws
  /// std::bad_alloc. [any thread, may throw]
  void* allocate(std::uint64_t count) const;
  /// Gives a block back, with the count that it was allocated with and by the same sizes.
  /// [any thread, no throw]
  void deallocate(void* block, std::uint64_t count) const noexcept;

  std::uint64_t elementSize;
  std::uint64_t elementAlignment;
};

}  // namespace Internal

// Its loops are plain ones: the standard library's would be a dozen functions more to compile for
// each of the many types of elements.

/// The library's growing array. It owns its elements, in a block of `capacity` of them that the
/// library allocated; without a block `data` is null. A pointer to an element is valid until the
/// array grows or ends. Reads are [any thread]; a change excludes every other use of the array.
template <typename T>
class Array {
 public:
  Array() noexcept = default;
  Array(const Array&) = delete;
  Array(Array&& other) noexcept
      : data(std::exchange(other.data, nullptr)),
        size(std::exchange(other.size, 0)),
        capacity(std::exchange(other.capacity, 0)) {}
  Array& operator=(const Array&) = delete;
  Array& operator=(Array&& other) noexcept {
    std::swap(data, other.data);
    std::swap(size, other.size);
    std::swap(capacity, other.capacity);
    return *this;
  }
  ~Array() { release(); }

  /// Grows by doubling, from 0 to 1 first; then the size, and the element is made of `source` in
  /// its place. `source` lies outside the array. When the library has no memory, or making the
  /// element throws, the array holds the elements that it held. [may throw]
  template <std::convertible_to<T> Source = T>
  void append(Source&& source) {
    if (size == capacity) moveTo(capacity == 0 ? 1 : capacity + capacity);
    T* place = data + size++;
    try {
      ::new (static_cast<void*>(place)) T(static_cast<T>(std::forward<Source>(source)));
    } catch (...) {
      --size;
      throw;
    }
  }

  const T& operator[](std::uint64_t index) const noexcept { return data[index]; }
  const T* begin() const noexcept { return data; }
  const T* end() const noexcept { return data + size; }

  T* data = nullptr;
  std::uint64_t size = 0;
  std::uint64_t capacity = 0;

 private:
  static constexpr Internal::UntypedTypeRep typeRep() noexcept { return {sizeof(T), alignof(T)}; }

  void moveTo(std::uint64_t newCapacity) {
    static_assert(std::is_nothrow_move_constructible_v<T>, "growth can't be taken back");
    T* block = static_cast<T*>(typeRep().allocate(newCapacity));
    if constexpr (std::is_trivially_copyable_v<T>) {
      if (size != 0) std::memcpy(block, data, size * sizeof(T));
    } else {
      for (std::uint64_t i = 0; i < size; ++i)
        ::new (static_cast<void*>(block + i)) T(std::move(data[i]));
    }
    release();
    data = block;
    capacity = newCapacity;
  }

  void release() noexcept {
    if constexpr (!std::is_trivially_destructible_v<T>) {
      for (std::uint64_t i = 0; i < size; ++i) data[i].~T();
    }
    if (capacity != 0) typeRep().deallocate(data, capacity);
  }
};

static_assert(offsetof(Array<int>, data) == 0 && offsetof(Array<int>, size) == 8 &&
              offsetof(Array<int>, capacity) == 16 && sizeof(Array<int>) == 24);

}  // namespace Orvel

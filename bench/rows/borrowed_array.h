#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace vtlcmd::bench {

/// Memory that starts at the begin of a page, shared by the arrays over it. Every fourth byte is 63
/// or 64, so that all floating numbers in it are moderate; all other bytes are pseudo-random.
class Bytes {
 public:
  explicit Bytes(std::size_t size) : size_(size), memory_(allocate(size), &std::free) {
    std::uint32_t random = 1;
    for (std::size_t i = 0; i < size / sizeof random; ++i) {
      random = random * 1664525 + 1013904223;
      const std::uint32_t word = (random >> 8) | (random >> 31 == 0 ? 0x3F000000U : 0x40000000U);
      std::memcpy(static_cast<std::byte*>(memory_.get()) + i * sizeof word, &word, sizeof word);
    }
  }

  void* address() const noexcept { return memory_.get(); }
  std::size_t size() const noexcept { return size_; }

 private:
  static void* allocate(std::size_t size) {
    constexpr std::size_t page = 4096;
    void* memory = std::aligned_alloc(page, (size + page - 1) / page * page);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
  }

  std::size_t size_;
  std::shared_ptr<void> memory_;
};

/// An array over bytes that it keeps alive and doesn't own: without a capacity it gives nothing
/// back.
template <typename T>
requires std::is_trivially_destructible_v<T> Orvel::Ptr<Orvel::Array<T>> arrayOver(
    const Bytes& bytes, std::size_t size) {
  struct Borrowed {
    explicit Borrowed(Bytes memory) : bytes(std::move(memory)) {}
    Bytes bytes;
    Orvel::Array<T> array;
  };
  auto borrowed = Orvel::makeMutable<Borrowed>(bytes);
  borrowed->array.data = static_cast<T*>(bytes.address());
  borrowed->array.size = size;
  Orvel::Array<T>* array = &borrowed->array;
  Orvel::Internal::ControlBlock* block = std::exchange(borrowed.control, nullptr);
  borrowed.pointer = nullptr;
  return Orvel::Ptr<Orvel::Array<T>>(array, block);
}

template <typename T>
Orvel::Ptr<Orvel::Array<T>> arrayOver(const Bytes& bytes) {
  return arrayOver<T>(bytes, bytes.size() / sizeof(T));
}

}  // namespace vtlcmd::bench

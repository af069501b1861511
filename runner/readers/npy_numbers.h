#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

#include "readers/byte_source.h"
#include "readers/half.h"
#include "readers/read_error.h"

namespace vtlcmd::runner {

/// The numbers of an array file in their order there. The caller knows how many there are; a file
/// that has fewer after all throws ReadError.
class NpyNumbers {
 public:
  NpyNumbers(ByteSource& file, bool swapped) : file_(file), swapped_(swapped) {}

  /// The next number, stored as one type and given as a wider one or the same.
  template <typename Stored, typename T>
  T next() {
    if (position_ == filled_) refill();
    if (filled_ - position_ < sizeof(Stored)) throwCut();
    std::array<unsigned char, sizeof(Stored)> bytes;
    std::memcpy(bytes.data(), buffer_.data() + position_, sizeof(Stored));
    position_ += sizeof(Stored);
    if constexpr (std::is_same_v<Stored, bool>) {
      return static_cast<T>(bytes[0] != 0);
    } else {
      if (swapped_) std::reverse(bytes.begin(), bytes.end());
      return static_cast<T>(std::bit_cast<Stored>(bytes));
    }
  }

  /// Fills raw memory with the next numbers, which stand in the file as they do in memory but for
  /// the order of their bytes. Not to be mixed with `next`.
  template <typename Number>
  void fill(std::span<unsigned char> memory) {
    while (!memory.empty()) {
      const std::span<unsigned char> block = memory.first(std::min(memory.size(), blockSize));
      if (file_.read(block) < block.size()) throwCut();
      if (swapped_) reverseEach<sizeof(Number)>(block);
      memory = memory.subspan(block.size());
    }
  }

 private:
  /// Small enough for the processor's cache and a multiple of every number's size.
  static constexpr std::size_t blockSize = 1 << 17;

  template <std::size_t Size>
  static void reverseEach(std::span<unsigned char> block) {
    for (auto number = block.begin(); number != block.end(); number += Size)
      std::reverse(number, number + Size);
  }

  [[noreturn]] static void throwCut() {
    throw ReadError("the file became shorter while it was read");
  }

  void refill() {
    position_ = 0;
    filled_ = file_.read(buffer_);
  }

  ByteSource& file_;
  bool swapped_;
  std::array<unsigned char, blockSize> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
};

}  // namespace vtlcmd::runner

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace vtlcmd::fuzz {

/// Takes values from the fuzzer's bytes, front to back; zeros when they have run out.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  bool empty() const noexcept { return rest_.empty(); }

  /// All bits of a number.
  template <typename Number>
  Number take() {
    Number number{};
    const std::size_t size = std::min(sizeof number, rest_.size());
    if (size > 0) std::memcpy(&number, rest_.data(), size);
    rest_ = rest_.subspan(size);
    return number;
  }

  /// One of 0 to `count` - 1; `count` is at most 256.
  std::size_t below(std::size_t count) { return take<std::uint8_t>() % count; }

  std::string text(std::size_t size) {
    std::string text(size, '\0');
    for (char& byte : text) byte = static_cast<char>(take<std::uint8_t>());
    return text;
  }

 private:
  std::span<const std::uint8_t> rest_;
};

}  // namespace vtlcmd::fuzz

#pragma once

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>

namespace vtlcmd::validator {

/// The bytes of a file, read with their bounds in view. The machine's order is the file's.
class Bytes {
 public:
  /// Throws std::runtime_error.
  explicit Bytes(const std::filesystem::path& file);

  std::uint64_t size() const noexcept { return bytes_.size(); }

  /// Throws std::runtime_error outside the file, as the next does.
  template <typename T>
  T at(std::uint64_t offset) const {
    T value;
    std::memcpy(&value, piece(offset, sizeof value).data(), sizeof value);
    return value;
  }
  /// Up to the terminator.
  std::string textAt(std::uint64_t offset) const;

 private:
  std::string_view piece(std::uint64_t offset, std::uint64_t size) const;

  std::string bytes_;
};

}  // namespace vtlcmd::validator

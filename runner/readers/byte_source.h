#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace vtlcmd::runner {

/// Bytes that are read once, from front to back.
class ByteSource {
 public:
  ByteSource() = default;
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;
  virtual ~ByteSource() = default;

  /// Fills `bytes` and gives how many there were; fewer than asked for only at the end. Throws
  /// ReadError, whose text leaves it to the caller to name the file.
  virtual std::size_t read(std::span<unsigned char> bytes) = 0;

  /// How many bytes are still to come, as far as is known before they are read. Reading may end
  /// earlier.
  virtual std::uint64_t remaining() const = 0;
};

/// Bytes in memory, which must outlive the source.
class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::span<const unsigned char> bytes) : rest_(bytes) {}

  std::size_t read(std::span<unsigned char> bytes) override {
    const std::size_t count = std::min(bytes.size(), rest_.size());
    if (count > 0) std::memcpy(bytes.data(), rest_.data(), count);
    rest_ = rest_.subspan(count);
    return count;
  }

  std::uint64_t remaining() const override { return rest_.size(); }

 private:
  std::span<const unsigned char> rest_;
};

}  // namespace vtlcmd::runner

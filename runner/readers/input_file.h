#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>

#include "readers/byte_source.h"

namespace vtlcmd::runner {

/// Throws ReadError, without the file's name, for what isn't there and for what is no regular file:
/// a folder, a device, a FIFO.
void requireRegularFile(const std::filesystem::path& file);

/// A regular file, read as it is at that moment: one that somebody cuts short meanwhile ends early.
class InputFile final : public ByteSource {
 public:
  /// Throws ReadError with the system's reason, without the file's name.
  explicit InputFile(const std::filesystem::path& file);

  std::size_t read(std::span<unsigned char> bytes) override;
  std::uint64_t remaining() const override { return size_ - position_; }

 private:
  std::ifstream stream_;
  std::uint64_t size_ = 0;
  std::uint64_t position_ = 0;
};

}  // namespace vtlcmd::runner

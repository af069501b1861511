#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace vtlcmd::runner {

/// A file's bytes in memory, read only. Throws std::system_error when the file can't be opened. A
/// file that somebody cuts short while it is mapped ends the process when read.
class MappedFile {
 public:
  explicit MappedFile(const std::filesystem::path& file);
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;
  ~MappedFile();

  std::span<const unsigned char> bytes() const noexcept { return {data_, size_}; }

  /// Gives back the memory of the first `count` bytes, where the system can. They can be read
  /// again, from the file.
  void release(std::size_t count) const noexcept;

 private:
  const unsigned char* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace vtlcmd::runner

#pragma once

#include <cstdint>
#include <filesystem>

namespace vtlcmd::runner {

/// What a file system says of a file, by which a change of its content shows.
struct FileStamp {
  std::filesystem::path file;
  std::filesystem::file_time_type changed;
  std::uintmax_t size;

  bool operator==(const FileStamp&) const = default;
};

/// That of a file that isn't there equals no other's.
FileStamp stampOf(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

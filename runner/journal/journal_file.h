#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iosfwd>
#include <string>

namespace vtlcmd::runner {

/// A journal that is being written. Each line is handed to the system whole before `append`
/// returns, so that it outlives the process.
class JournalFile {
 public:
  /// Begins an empty file in the place of what is there. Throws std::system_error.
  explicit JournalFile(std::filesystem::path file);
  /// Goes on behind the first `size` bytes of a file, and drops what follows. Throws
  /// std::system_error.
  JournalFile(const std::filesystem::path& file, std::uint64_t size);
  /// A file of nobody else's in the folder for temporary ones, where the platform allows it without
  /// a name. Throws std::system_error.
  static JournalFile temporary();
  JournalFile(JournalFile&&) = default;

  /// Throws std::system_error; from then on the file takes no lines, since the last one may be
  /// torn.
  void append(const std::string& line);

  /// The lines from the first one on. Nothing may be appended while they are read.
  std::istream& lines();

  /// Ends the file and its lines. Called once.
  void remove() noexcept;

  /// Empty when the file has no name.
  const std::filesystem::path& path() const noexcept { return file_; }

 private:
  /// Opens both streams of the file.
  void open(std::ios::openmode mode);

  std::filesystem::path file_;
  /// Without a buffer: what couldn't be written of a line must not come behind it later.
  std::ofstream written_;
  std::ifstream read_;
};

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <fstream>
#include <iosfwd>

namespace vtlcmd::runner {

/// A file that appears whole or not at all: what is written goes to another file beside it, which
/// takes its place in the end. Devices and pipes are written as they are.
class WholeFile {
 public:
  /// Makes sure that the folder can be written to; throws std::system_error. What the file holds
  /// stays until `commit`.
  explicit WholeFile(const std::filesystem::path& file);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  /// Without a commit nothing is left behind.
  ~WholeFile();

  std::ostream& stream() noexcept { return stream_; }

  /// Puts what was written in the file's place; throws std::system_error. Called once.
  void commit();

 private:
  std::filesystem::path file_;
  /// Where the stream writes to; empty once it has become the file.
  std::filesystem::path partial_;
  std::ofstream stream_;
};

}  // namespace vtlcmd::runner

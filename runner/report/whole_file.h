#pragma once

#include <filesystem>
#include <fstream>
#include <ostream>

namespace vtlcmd::runner {

/// Keeps what the system said first of a write that failed, which a stream forgets.
class FileBuffer : public std::filebuf {
 public:
  /// The system's number of the error; zero when there was none.
  int failure() const noexcept { return failure_; }

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize count) override;
  int sync() override;

 private:
  void remember(bool failed);

  int failure_ = 0;
};

/// A file that appears whole or not at all: what is written goes to another file beside it, which
/// takes its place in the end. Devices and pipes are written as they are.
class WholeFile {
 public:
  /// Makes sure that the folder can be written to, that a link leads to a file and that a file
  /// isn't read-only; throws std::system_error. What the file holds stays until `commit`.
  explicit WholeFile(const std::filesystem::path& file);
  /// Makes sure of the same and creates nothing, so that nothing can stay behind.
  static void check(const std::filesystem::path& file);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  /// Removes what processes that were killed while they wrote this file left beside it, as far as
  /// they ran on this machine. What can't be removed stays.
  static void removeLeftovers(const std::filesystem::path& file) noexcept;
  /// Without a commit nothing is left behind.
  ~WholeFile();

  std::ostream& stream() noexcept { return stream_; }

  /// Puts what was written in the file's place; throws std::system_error. Called once.
  void commit();

 private:
  std::filesystem::path file_;
  /// Where the stream writes to; empty once it has become the file.
  std::filesystem::path partial_;
  FileBuffer buffer_;
  std::ostream stream_{&buffer_};
};

}  // namespace vtlcmd::runner

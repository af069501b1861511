#include "journal/journal_file.h"

#include <cerrno>
#include <random>
#include <system_error>
#include <utility>

#include "text/system_reason.h"

namespace vtlcmd::runner {

JournalFile::JournalFile(std::filesystem::path file) : file_(std::move(file)) {
  open(std::ios::trunc);
}

JournalFile::JournalFile(const std::filesystem::path& file, std::uint64_t size) : file_(file) {
  std::filesystem::resize_file(file, size);
  open(std::ios::app);
}

void JournalFile::open(std::ios::openmode mode) {
  errno = 0;
  written_.rdbuf()->pubsetbuf(nullptr, 0);
  written_.open(file_, std::ios::binary | mode);
  if (written_) read_.open(file_, std::ios::binary);
  if (!written_ || !read_) throwLastError();
}

JournalFile JournalFile::temporary() {
  std::random_device random;
  const std::string name =
      "vtlcmd-" + std::to_string(random()) + "-" + std::to_string(random()) + ".journal";
  JournalFile file(std::filesystem::temp_directory_path() / name);
  // An open file needs no name, except on Windows, where this fails.
  std::error_code ignored;
  if (std::filesystem::remove(file.file_, ignored)) file.file_.clear();
  return file;
}

void JournalFile::append(const std::string& line) {
  errno = 0;
  written_ << line << std::flush;
  if (!written_) throwLastError();
}

std::istream& JournalFile::lines() {
  read_.clear();
  read_.seekg(0);
  return read_;
}

void JournalFile::remove() noexcept {
  written_.close();
  read_.close();
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
}

}  // namespace vtlcmd::runner

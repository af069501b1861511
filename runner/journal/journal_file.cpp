#include "journal/journal_file.h"

#include <cerrno>
#include <random>
#include <system_error>

#include "text/system_reason.h"

namespace vtlcmd::runner {

JournalFile::JournalFile(const std::filesystem::path& file) : file_(file) {
  errno = 0;
  stream_.open(file, std::ios::in | std::ios::out | std::ios::binary | std::ios::trunc);
  if (!stream_) throwLastError();
}

JournalFile::JournalFile(const std::filesystem::path& file, std::uint64_t size) : file_(file) {
  std::filesystem::resize_file(file, size);
  errno = 0;
  stream_.open(file, std::ios::in | std::ios::out | std::ios::binary | std::ios::ate);
  if (!stream_) throwLastError();
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
  stream_ << line << std::flush;
  if (!stream_) throwLastError();
}

std::istream& JournalFile::lines() {
  stream_.clear();
  stream_.seekg(0);
  return stream_;
}

void JournalFile::remove() noexcept {
  stream_.close();
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
}

}  // namespace vtlcmd::runner

#include "report/whole_file.h"

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "journal/crc32.h"
#include "journal/process_identity.h"
#include "platform/writable_folder.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms anyoneWrites =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

/// The file itself where a link names it, so that the link stays. A link that leads nowhere fails.
fs::path linkTarget(const fs::path& file) {
  return fs::is_symlink(fs::symlink_status(file)) ? fs::canonical(file) : file;
}

/// Whether the file is a plain one or not there yet. A plain one that is read-only fails: its owner
/// means it to stay, though the folder would allow another in its place.
bool canBeReplaced(const fs::path& file) {
  const fs::file_status status = fs::status(file);
  if (!fs::exists(status)) return true;
  // Not every platform calls it that.
  if (fs::is_directory(status)) throw std::system_error(EISDIR, std::generic_category());
  if (!fs::is_regular_file(status)) return false;
  if ((status.permissions() & anyoneWrites) == fs::perms::none)
    throw std::system_error(EACCES, std::generic_category());
  return true;
}

constexpr std::string_view partialEnding = ".part";

/// What the names of files that are being written to take a file's place begin with, where
/// processes of this machine write them. The process and a random number follow.
std::string partialBeginning(const fs::path& file) {
  return "." + fileText(file.filename()) + "." + std::to_string(crc32(processSpace())) + "-";
}

/// A name beside the file that no other process takes.
fs::path besideFile(const fs::path& file) {
  std::random_device random;
  const std::string name = partialBeginning(file) + std::to_string(processNumber()) + "-" +
                           std::to_string(random()) + std::string(partialEnding);
  return file.parent_path() / filePath(name);
}

/// The process in the name of a file that `besideFile` named; 0 in other names.
std::uint64_t processOf(std::string_view name, std::string_view beginning) {
  if (!name.starts_with(beginning) || !name.ends_with(partialEnding)) return 0;
  name.remove_prefix(beginning.size());
  std::uint64_t process = 0;
  const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), process);
  return error == std::errc() && *stop == '-' ? process : 0;
}

}  // namespace

FileBuffer::int_type FileBuffer::overflow(int_type character) {
  errno = 0;
  const int_type result = std::filebuf::overflow(character);
  remember(traits_type::eq_int_type(result, traits_type::eof()));
  return result;
}

std::streamsize FileBuffer::xsputn(const char* text, std::streamsize count) {
  errno = 0;
  const std::streamsize written = std::filebuf::xsputn(text, count);
  remember(written != count);
  return written;
}

int FileBuffer::sync() {
  errno = 0;
  const int result = std::filebuf::sync();
  remember(result != 0);
  return result;
}

void FileBuffer::remember(bool failed) {
  if (failed && failure_ == 0) failure_ = errno;
}

void WholeFile::removeLeftovers(const fs::path& file) noexcept {
  try {
    const fs::path target = linkTarget(file);
    const std::string beginning = partialBeginning(target);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      const std::uint64_t process = processOf(fileText(entry.path().filename()), beginning);
      std::error_code ignored;
      if (process != 0 && !isRunning(process)) fs::remove(entry.path(), ignored);
    }
  } catch (const std::exception&) {
    // What is left behind is in nobody's way.
  }
}

void WholeFile::check(const fs::path& file) {
  const fs::path target = linkTarget(file);
  if (canBeReplaced(target)) requireWritableFolder(target.parent_path());
}

WholeFile::WholeFile(const fs::path& file)
    : file_(linkTarget(file)), partial_(canBeReplaced(file_) ? besideFile(file_) : file_) {
  errno = 0;
  if (buffer_.open(partial_, std::ios::out | std::ios::binary | std::ios::trunc) == nullptr)
    throwLastError();
}

WholeFile::~WholeFile() {
  buffer_.close();
  std::error_code ignored;
  if (!partial_.empty() && partial_ != file_) fs::remove(partial_, ignored);
}

void WholeFile::commit() {
  errno = 0;
  if (buffer_.close() == nullptr || !stream_) {
    if (buffer_.failure() != 0) errno = buffer_.failure();
    throwLastError();
  }
  if (partial_ != file_) {
    std::error_code ignored;
    const fs::file_status before = fs::status(file_, ignored);
    if (fs::exists(before)) fs::permissions(partial_, before.permissions(), ignored);
    fs::rename(partial_, file_);
  }
  partial_.clear();
}

}  // namespace vtlcmd::runner

#include "report/whole_file.h"

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

#include "platform/writable_folder.h"

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

/// A name beside the file that no other process takes.
fs::path besideFile(const fs::path& file) {
  std::random_device random;
  fs::path name = ".";
  name += file.filename();
  name += "." + std::to_string(random()) + "-" + std::to_string(random()) + ".part";
  return file.parent_path() / name;
}

[[noreturn]] void throwLast() {
  throw std::system_error(errno != 0 ? errno : EIO, std::generic_category());
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

void WholeFile::check(const fs::path& file) {
  const fs::path target = linkTarget(file);
  if (canBeReplaced(target)) requireWritableFolder(target.parent_path());
}

WholeFile::WholeFile(const fs::path& file)
    : file_(linkTarget(file)), partial_(canBeReplaced(file_) ? besideFile(file_) : file_) {
  errno = 0;
  if (buffer_.open(partial_, std::ios::out | std::ios::binary | std::ios::trunc) == nullptr)
    throwLast();
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
    throwLast();
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

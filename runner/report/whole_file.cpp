#include "report/whole_file.h"

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// The file itself where a link names it, so that the link stays.
fs::path linkTarget(const fs::path& file) {
  std::error_code error;
  fs::path target = fs::weakly_canonical(file, error);
  return error ? file : target;
}

bool canBeReplaced(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  return !fs::exists(status) || fs::is_regular_file(status);
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

WholeFile::WholeFile(const fs::path& file)
    : file_(linkTarget(file)), partial_(canBeReplaced(file_) ? besideFile(file_) : file_) {
  errno = 0;
  stream_.open(partial_, std::ios::binary | std::ios::trunc);
  if (!stream_) throwLast();
}

WholeFile::~WholeFile() {
  stream_.close();
  std::error_code ignored;
  if (!partial_.empty() && partial_ != file_) fs::remove(partial_, ignored);
}

void WholeFile::commit() {
  errno = 0;
  stream_.close();
  if (!stream_) throwLast();
  if (partial_ != file_) {
    std::error_code ignored;
    const fs::file_status before = fs::status(file_, ignored);
    if (fs::exists(before)) fs::permissions(partial_, before.permissions(), ignored);
    fs::rename(partial_, file_);
  }
  partial_.clear();
}

}  // namespace vtlcmd::runner

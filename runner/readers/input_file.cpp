#include "readers/input_file.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include "platform/interrupt.h"
#include "readers/read_error.h"

namespace vtlcmd::runner {
namespace {

/// The last call's reason. Where the stream library leaves none, there is one all the same.
ReadError lastError() {
  return ReadError(errno == 0 ? "it can't be read" : std::generic_category().message(errno));
}

const char* nameOf(std::filesystem::file_type type) {
  switch (type) {
    case std::filesystem::file_type::directory:
      return "a folder";
    case std::filesystem::file_type::fifo:
      return "a FIFO";
    case std::filesystem::file_type::socket:
      return "a socket";
    default:
      return "a device";
  }
}

}  // namespace

void requireRegularFile(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_type type = std::filesystem::status(file, error).type();
  if (error) throw ReadError(error.default_error_condition().message());
  if (type != std::filesystem::file_type::regular)
    throw ReadError(std::string("it is ") + nameOf(type) + "; only regular files are read");
}

InputFile::InputFile(const std::filesystem::path& file) {
  requireRegularFile(file);
  // Whole blocks go from the file to where they are wanted.
  stream_.rdbuf()->pubsetbuf(nullptr, 0);
  errno = 0;
  stream_.open(file, std::ios::binary);
  if (!stream_) throw lastError();
  stream_.seekg(0, std::ios::end);
  const std::streamoff size = stream_.tellg();
  stream_.seekg(0);
  if (!stream_ || size < 0) throw lastError();
  size_ = static_cast<std::uint64_t>(size);
}

std::size_t InputFile::read(std::span<unsigned char> bytes) {
  throwIfAbandoned();
  const auto wanted =
      static_cast<std::streamsize>(std::min<std::uint64_t>(bytes.size(), remaining()));
  errno = 0;
  stream_.read(reinterpret_cast<char*>(bytes.data()), wanted);
  if (stream_.bad()) throw lastError();
  const auto count = static_cast<std::size_t>(stream_.gcount());
  position_ += count;
  return count;
}

}  // namespace vtlcmd::runner

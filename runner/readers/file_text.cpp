#include "readers/file_text.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>

namespace vtlcmd::runner {
namespace {

constexpr std::size_t blockSize = 1 << 16;

[[noreturn]] void fail(int number) {
  throw std::system_error(number != 0 ? number : EIO, std::generic_category());
}

}  // namespace

std::string readFile(const std::filesystem::path& file) {
  // Opening a directory succeeds on some platforms.
  std::error_code ignored;
  if (std::filesystem::is_directory(file, ignored)) fail(EISDIR);
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) fail(errno);
  std::string text;
  std::array<char, blockSize> block{};
  while (stream.read(block.data(), block.size()) || stream.gcount() > 0)
    text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
  if (stream.bad()) fail(errno);
  return text;
}

std::string readStandardInput() {
  std::string text;
  std::array<char, blockSize> block{};
  // The stream of the C++ library takes an error for the end.
  errno = 0;
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), stdin))
    text.append(block.data(), count);
  if (std::ferror(stdin) != 0) fail(errno);
  return text;
}

}  // namespace vtlcmd::runner

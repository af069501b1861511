#include "journal/content_hash.h"

#include <cerrno>
#include <fstream>
#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "journal/sha256.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

std::optional<std::string> contentHash(const std::filesystem::path& file) {
  std::error_code ignored;
  // Reading from a pipe or a device would take something away, or never end.
  if (!std::filesystem::is_regular_file(file, ignored)) return std::nullopt;
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream && errno == ENOMEM) throw std::bad_alloc();
  Sha256 hash;
  std::vector<char> block(std::size_t{1} << 16U);
  while (stream.read(block.data(), static_cast<std::streamsize>(block.size())) ||
         stream.gcount() > 0)
    hash.add({block.data(), static_cast<std::size_t>(stream.gcount())});
  if (stream.bad()) throw std::runtime_error(fileText(file) + " can't be read to its end");
  if (!stream.eof()) return std::nullopt;
  return hash.finish();
}

}  // namespace vtlcmd::runner

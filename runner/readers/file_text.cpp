#include "readers/file_text.h"

#include <fstream>
#include <istream>

namespace vtlcmd::runner {

std::optional<std::string> readStream(std::istream& stream) {
  std::string text;
  char block[1 << 16];
  while (stream.read(block, sizeof block) || stream.gcount() > 0)
    text.append(block, static_cast<std::size_t>(stream.gcount()));
  if (!stream.eof() || stream.bad()) return std::nullopt;
  return text;
}

std::optional<std::string> readFile(const std::filesystem::path& file) {
  // Opening a directory succeeds on some platforms; reading it gives nothing rather than an error.
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  return stream ? readStream(stream) : std::nullopt;
}

}  // namespace vtlcmd::runner

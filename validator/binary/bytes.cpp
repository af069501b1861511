#include "binary/bytes.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vtlcmd::validator {

Bytes::Bytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  bytes_.assign(std::istreambuf_iterator<char>(stream), {});
  if (!stream) throw std::runtime_error("the file can't be read");
}

std::string Bytes::textAt(std::uint64_t offset) const {
  const std::size_t end = bytes_.find('\0', offset);
  if (end == std::string::npos) throw std::runtime_error("the file is cut short");
  return bytes_.substr(offset, end - offset);
}

std::string_view Bytes::piece(std::uint64_t offset, std::uint64_t size) const {
  if (offset > bytes_.size() || size > bytes_.size() - offset)
    throw std::runtime_error("the file is cut short");
  return std::string_view(bytes_).substr(offset, size);
}

}  // namespace vtlcmd::validator

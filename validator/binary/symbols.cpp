#include "binary/symbols.h"

#include <stdexcept>

#include "binary/formats.h"

namespace vtlcmd::validator {

BinarySymbols readSymbols(const std::filesystem::path& file) {
  constexpr std::uint32_t elfMagic = 0x464C457F;
  constexpr std::uint16_t dosMagic = 0x5A4D;
  const Bytes bytes(file);
  if (bytes.at<std::uint32_t>(0) == elfMagic) return readElf(bytes);
  if (bytes.at<std::uint16_t>(0) == dosMagic) return readPe(bytes);
  throw std::runtime_error("the file is neither ELF nor PE");
}

}  // namespace vtlcmd::validator

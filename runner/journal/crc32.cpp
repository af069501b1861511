#include "journal/crc32.h"

#include <array>

namespace vtlcmd::runner {
namespace {

constexpr std::array<std::uint32_t, 256> makeTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t rest = byte;
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1U) ^ ((rest & 1U) != 0 ? 0xEDB88320U : 0U);
    table[byte] = rest;
  }
  return table;
}

constexpr std::array<std::uint32_t, 256> table = makeTable();

}  // namespace

std::uint32_t crc32(std::string_view bytes) noexcept {
  std::uint32_t rest = ~std::uint32_t{0};
  for (const char byte : bytes)
    rest = (rest >> 8U) ^ table[(rest ^ static_cast<unsigned char>(byte)) & 0xFFU];
  return ~rest;
}

}  // namespace vtlcmd::runner

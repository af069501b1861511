#include <stdexcept>

#include "binary/formats.h"

namespace vtlcmd::validator {
namespace {

// Of a 64-bit ELF file, by the System V ABI.
constexpr std::uint64_t headerSectionTable = 40;
constexpr std::uint64_t headerSectionCount = 60;
constexpr std::uint64_t sectionHeaderSize = 64;
constexpr std::uint64_t symbolSize = 24;
constexpr std::uint64_t dynamicSize = 16;
constexpr std::uint32_t sectionDynamic = 6;
constexpr std::uint32_t sectionDynamicSymbols = 11;
constexpr std::uint64_t tagNeeded = 1;

struct Section {
  std::uint32_t type;
  std::uint64_t offset;
  std::uint64_t size;
  std::uint32_t link;
};

Section sectionAt(const Bytes& bytes, std::uint64_t index) {
  const std::uint64_t at = bytes.at<std::uint64_t>(headerSectionTable) + index * sectionHeaderSize;
  return {bytes.at<std::uint32_t>(at + 4), bytes.at<std::uint64_t>(at + 24),
          bytes.at<std::uint64_t>(at + 32), bytes.at<std::uint32_t>(at + 40)};
}

void readSymbolTable(const Bytes& bytes, const Section& table, BinarySymbols& symbols) {
  const std::uint64_t texts = sectionAt(bytes, table.link).offset;
  // The first entry stands for no symbol.
  for (std::uint64_t i = 1; i < table.size / symbolSize; ++i) {
    const std::uint64_t at = table.offset + i * symbolSize;
    const std::string name = bytes.textAt(texts + bytes.at<std::uint32_t>(at));
    const bool isUndefined = bytes.at<std::uint16_t>(at + 6) == 0;
    (isUndefined ? symbols.imports : symbols.exports).push_back(name);
  }
}

void readLibraries(const Bytes& bytes, const Section& dynamic, BinarySymbols& symbols) {
  const std::uint64_t texts = sectionAt(bytes, dynamic.link).offset;
  for (std::uint64_t i = 0; i < dynamic.size / dynamicSize; ++i) {
    const std::uint64_t at = dynamic.offset + i * dynamicSize;
    if (bytes.at<std::uint64_t>(at) == tagNeeded)
      symbols.libraries.push_back(bytes.textAt(texts + bytes.at<std::uint64_t>(at + 8)));
  }
}

}  // namespace

BinarySymbols readElf(const Bytes& bytes) {
  constexpr std::uint8_t class64 = 2;
  if (bytes.at<std::uint8_t>(4) != class64) throw std::runtime_error("the file isn't 64-bit");
  BinarySymbols symbols;
  const auto count = bytes.at<std::uint16_t>(headerSectionCount);
  for (std::uint64_t i = 0; i < count; ++i) {
    const Section section = sectionAt(bytes, i);
    if (section.type == sectionDynamicSymbols) readSymbolTable(bytes, section, symbols);
    if (section.type == sectionDynamic) readLibraries(bytes, section, symbols);
  }
  return symbols;
}

}  // namespace vtlcmd::validator

#include <stdexcept>

#include "binary/formats.h"

namespace vtlcmd::validator {
namespace {

// Of a 64-bit PE file, by its published format.
constexpr std::uint64_t dosHeaderPe = 0x3C;
constexpr std::uint64_t peSectionCount = 6;
constexpr std::uint64_t peOptionalSize = 20;
constexpr std::uint64_t peOptional = 24;
constexpr std::uint16_t magic64 = 0x20B;
constexpr std::uint64_t optionalDirectories = 112;
constexpr std::uint64_t directorySize = 8;
constexpr std::uint64_t sectionRowSize = 40;
constexpr std::uint64_t importSize = 20;
constexpr std::uint64_t byOrdinal = std::uint64_t{1} << 63;

/// Addresses of the loaded image, looked up in the file.
class Image {
 public:
  explicit Image(const Bytes& bytes) : bytes_(bytes), pe_(bytes.at<std::uint32_t>(dosHeaderPe)) {
    if (bytes.at<std::uint16_t>(pe_ + peOptional) != magic64)
      throw std::runtime_error("the file isn't 64-bit");
  }

  std::uint32_t directory(std::uint64_t index) const {
    return bytes_.at<std::uint32_t>(pe_ + peOptional + optionalDirectories + index * directorySize);
  }
  template <typename T>
  T at(std::uint64_t address) const {
    return bytes_.at<T>(offsetOf(address));
  }
  std::string textAt(std::uint64_t address) const { return bytes_.textAt(offsetOf(address)); }

 private:
  std::uint64_t offsetOf(std::uint64_t address) const {
    const std::uint64_t sections =
        pe_ + peOptional + bytes_.at<std::uint16_t>(pe_ + peOptionalSize);
    const auto count = bytes_.at<std::uint16_t>(pe_ + peSectionCount);
    for (std::uint64_t i = 0; i < count; ++i) {
      const std::uint64_t section = sections + i * sectionRowSize;
      const std::uint64_t begin = bytes_.at<std::uint32_t>(section + 12);
      const std::uint64_t size = bytes_.at<std::uint32_t>(section + 16);
      if (address >= begin && address - begin < size)
        return address - begin + bytes_.at<std::uint32_t>(section + 20);
    }
    throw std::runtime_error("an address leads out of the file");
  }

  const Bytes& bytes_;
  std::uint64_t pe_;
};

void readExports(const Image& image, BinarySymbols& symbols) {
  const std::uint64_t table = image.directory(0);
  if (table == 0) return;
  const std::uint64_t names = image.at<std::uint32_t>(table + 32);
  for (std::uint64_t i = 0; i < image.at<std::uint32_t>(table + 24); ++i)
    symbols.exports.push_back(image.textAt(image.at<std::uint32_t>(names + 4 * i)));
}

void readImports(const Image& image, BinarySymbols& symbols) {
  const std::uint64_t table = image.directory(1);
  if (table == 0) return;
  for (std::uint64_t row = table; image.at<std::uint32_t>(row + 12) != 0; row += importSize) {
    symbols.libraries.push_back(image.textAt(image.at<std::uint32_t>(row + 12)));
    std::uint64_t entry = image.at<std::uint32_t>(row);
    for (; image.at<std::uint64_t>(entry) != 0; entry += 8) {
      const auto name = image.at<std::uint64_t>(entry);
      // A hint of two bytes stands before the name.
      if ((name & byOrdinal) == 0) symbols.imports.push_back(image.textAt(name + 2));
    }
  }
}

}  // namespace

BinarySymbols readPe(const Bytes& bytes) {
  const Image image(bytes);
  BinarySymbols symbols;
  readExports(image, symbols);
  readImports(image, symbols);
  return symbols;
}

}  // namespace vtlcmd::validator

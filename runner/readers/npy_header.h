#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vtlcmd::runner {

struct NpyHeader {
  /// Byte order, kind and size, like "<f4".
  std::string descriptor;
  bool fortranOrder = false;
  std::vector<std::uint64_t> shape;
  /// Where the elements begin, at most the file's size.
  std::size_t dataOffset = 0;
};

/// Throws ReadError, whose text leaves it to the caller to name the file.
NpyHeader parseNpyHeader(std::span<const unsigned char> file);

}  // namespace vtlcmd::runner

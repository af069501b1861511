#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "readers/byte_source.h"

namespace vtlcmd::runner {

struct NpyHeader {
  /// Byte order, kind and size, like "<f4".
  std::string descriptor;
  bool fortranOrder = false;
  std::vector<std::uint64_t> shape;
};

/// Reads a file up to its first element. Throws ReadError, whose text leaves it to the caller to
/// name the file.
NpyHeader parseNpyHeader(ByteSource& file);

/// The bytes before the elements of an array in C order, whose type the descriptor without its
/// order names: "f4". The elements are in this machine's byte order.
std::string npyHeader(std::string_view type, std::span<const std::uint64_t> shape);

}  // namespace vtlcmd::runner

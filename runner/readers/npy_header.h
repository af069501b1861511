#pragma once

#include <cstdint>
#include <string>
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

}  // namespace vtlcmd::runner

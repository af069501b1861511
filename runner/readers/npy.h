#pragma once

#include <filesystem>
#include <span>

#include "host/imports/orvel_values.h"

/// Array files of NumPy, versions 1 to 3: booleans, integers of 8 to 64 bits and floats of 32 and
/// 64 bits, in either byte order, in C or Fortran order, with one to three dimensions.

namespace vtlcmd {

/// The array in a file's bytes, nested as deep as it has dimensions. Throws ReadError, whose text
/// leaves it to the caller to name the file.
Orvel::Value parseNpy(std::span<const unsigned char> file);

/// The array in a file, which is mapped, not read as a whole. Throws ReadError.
Orvel::Value readNpy(const std::filesystem::path& file);

}  // namespace vtlcmd

#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>

#include "host/imports/orvel_values.h"

/// Array files of NumPy, versions 1 to 3: booleans, integers of 8 to 64 bits and floats of 32 and
/// 64 bits, in either byte order, in C or Fortran order, with one to three dimensions.

namespace vtlcmd::runner {

/// Whether the last dimension becomes arrays like the others, or, when it is 2 to 4 floats long,
/// vectors.
enum class NpyElements { numbers, vectors };

/// The array in a file's bytes, nested as deep as it has dimensions. Throws ReadError, whose text
/// leaves it to the caller to name the file. `consumed`, if there is one, is told now and then how
/// many bytes from the file's begin on won't be read any more.
Orvel::Value parseNpy(std::span<const unsigned char> file, NpyElements form = NpyElements::numbers,
                      const std::function<void(std::size_t)>& consumed = {});

/// The array in a file, which is mapped, not read as a whole. Throws ReadError.
Orvel::Value readNpy(const std::filesystem::path& file, NpyElements form = NpyElements::numbers);

}  // namespace vtlcmd::runner

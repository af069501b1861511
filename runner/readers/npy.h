#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "readers/byte_source.h"
#include "vtlcmd/host/imports/orvel_values.h"

/// Array files of NumPy, versions 1 to 3: booleans, integers of 8 to 64 bits and floats of 16 to 64
/// bits, in either byte order, in C or Fortran order, with one to three dimensions.

namespace vtlcmd::runner {

/// What becomes of a file's elements.
struct NpyForm {
  /// The last dimension, which must be 2 to 4 floats long, becomes vectors, not arrays like the
  /// others.
  bool vectors = false;
  /// Integers of 8 and 16 bits become int or uint.
  bool widened = false;
};

/// What a file says of its array.
struct NpyFacts {
  /// "float32"
  std::string elements;
  std::vector<std::uint64_t> shape;
  /// "int" where the value's elements are of a wider type than the file's, else empty.
  std::string widenedTo;
};

/// "float32, 1000 × 3", or "int16, 7, widened to int".
std::string describe(const NpyFacts& facts);

struct NpyArray {
  /// Nested as deep as the file has dimensions.
  Orvel::Value value;
  NpyFacts facts;
};

/// The array in a file, whose bytes are read up to the end. Throws ReadError, whose text leaves it
/// to the caller to name the file, and std::bad_alloc.
NpyArray parseNpy(ByteSource& file, NpyForm form = {});

}  // namespace vtlcmd::runner

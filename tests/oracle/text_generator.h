#pragma once

#include <cstdint>
#include <string>

#include "random_source.h"

namespace vtlcmd::oracle {

enum class TextFamily {
  /// Whatever a user might give for a port, or had better not.
  mixed,
  /// Numbers at the limits of the types and half-way between two neighbours.
  hardNumbers,
};

/// One seed always gives the same sequence of texts. They may hold NUL bytes.
class TextGenerator {
 public:
  TextGenerator(std::uint64_t seed, TextFamily family) : random_(seed), family_(family) {}

  std::string next();

 private:
  RandomSource random_;
  TextFamily family_;
};

}  // namespace vtlcmd::oracle

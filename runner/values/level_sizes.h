#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// What is known of the sizes at one level of an array.
struct LevelSize {
  /// That of its first array; nothing when there is none.
  std::optional<std::uint64_t> size;
  /// Another one has another size.
  bool isRagged = false;
};

/// By level, from the outermost, of an array of so many levels.
std::vector<LevelSize> levelSizes(const Orvel::Value& array, std::uint32_t depth);

}  // namespace vtlcmd::runner

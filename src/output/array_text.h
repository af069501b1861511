#pragma once

#include <algorithm>
#include <cstdint>
#include <ostream>

#include "host/imports/orvel_string.h"
#include "logging/vtlcmd_logger.h"

/// The pieces that array text is made of. `total` is an array's element count, `shown` how many of
/// its elements are listed, `typeWord` what the head calls them.

namespace vtlcmd {

/// `array<int>` for one level, `array<array<int>>` for two.
Orvel::String arrayTypeName(const char* baseName, std::uint32_t levels);

inline std::uint64_t shownOf(std::uint64_t total, const VtlCmdLogger& logger) {
  return std::min<std::uint64_t>(total, logger.printLimit);
}

void writeShortNote(std::ostream& stream, std::uint64_t total, const char* typeWord);

void writeRefusal(std::ostream& stream, const char* typeWord);

/// A head, the first `shown` elements, each written by `printElement(index)`, and a list end.
template <typename PrintElement>
void writeList(std::ostream& stream, std::uint64_t shown, std::uint64_t total, const char* typeWord,
               PrintElement&& printElement) {
  stream << "\n(" << shown << " out of " << total << " " << typeWord << ")[\n";
  for (std::uint64_t i = 0; i < shown; ++i) {
    printElement(i);
    if (i < shown - 1) stream << ",\n";
  }
  stream << " ]\n";
}

}  // namespace vtlcmd

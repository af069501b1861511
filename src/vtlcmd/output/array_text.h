#pragma once

#include <algorithm>
#include <cstdint>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/text_builder.h"

/// The pieces that array text is made of. `total` is an array's element count, `shown` how many of
/// its elements are listed, `typeWord` what the head calls them.

namespace vtlcmd {

/// `array<int>` for one level, `array<array<int>>` for two.
Orvel::String arrayTypeName(const char* baseName, std::uint32_t levels);

inline std::uint64_t shownOf(std::uint64_t total, const VtlCmdLogger& logger) {
  return std::min<std::uint64_t>(total, logger.printLimit);
}

void writeShortNote(TextBuilder& text, std::uint64_t total, const char* typeWord);

void writeRefusal(TextBuilder& text, const char* typeWord);

/// A head, the first `shown` elements, each written by `printElement(index)`, and a list end.
template <typename PrintElement>
void writeList(TextBuilder& text, std::uint64_t shown, std::uint64_t total, const char* typeWord,
               PrintElement&& printElement) {
  text << "\n(" << shown << " out of " << total << " " << typeWord << ")[\n";
  for (std::uint64_t i = 0; i < shown; ++i) {
    printElement(i);
    if (i < shown - 1) text << ",\n";
  }
  text << " ]\n";
}

}  // namespace vtlcmd

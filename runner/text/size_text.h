#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// A number of bytes from a text like 512M, 4G or 4GiB; the units are powers of 1024. Nothing for
/// another text and for none at all.
std::optional<std::uint64_t> sizeFrom(std::string_view text);

/// A number of bytes in the largest unit that leaves it whole: "4 GiB", "1536 MiB", "7 bytes".
std::string sizeText(std::uint64_t bytes);

}  // namespace vtlcmd::runner

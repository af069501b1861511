#pragma once

#include <cstdint>
#include <string_view>

namespace vtlcmd::runner {

/// The checksum of ISO 3309, as in Ethernet and gzip: polynomial 0xEDB88320 in reflected form.
std::uint32_t crc32(std::string_view bytes) noexcept;

}  // namespace vtlcmd::runner

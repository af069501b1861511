#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>

namespace vtlcmd::runner {

/// The library that reads archives, with its version; "none" in a build without one.
std::string archiveReaderName();

/// Gives each file in a zip archive, by its name and its bytes, which last for the call. Throws
/// ReadError, which doesn't name it, for every archive in a build without a library.
void readArchive(
    const std::filesystem::path& file,
    const std::function<void(const std::string&, std::span<const unsigned char>)>& give);

}  // namespace vtlcmd::runner

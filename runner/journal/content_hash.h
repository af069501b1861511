#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace vtlcmd::runner {

/// The SHA-256 of a regular file's content, in 64 hexadecimal digits. Nothing for what can't be
/// opened. Throws std::runtime_error when reading fails on the way.
std::optional<std::string> contentHash(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

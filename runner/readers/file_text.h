#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace vtlcmd::runner {

/// All bytes up to the end. Nothing when reading fails.
std::optional<std::string> readStream(std::istream& stream);

/// All bytes of a file. Nothing when it can't be read.
std::optional<std::string> readFile(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

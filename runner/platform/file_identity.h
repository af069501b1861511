#pragma once

#include <filesystem>

namespace vtlcmd::runner {

/// What a file that is replaced by its name is told apart by: its path without links and dots, be
/// it there already or not.
std::filesystem::path fileIdentity(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

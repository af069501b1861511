#pragma once

#include <filesystem>
#include <string>

namespace vtlcmd::runner {

// Both read all bytes up to the end, and throw std::system_error with the system's reason.

std::string readFile(const std::filesystem::path& file);
std::string readStandardInput();

}  // namespace vtlcmd::runner

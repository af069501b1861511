#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vtlcmd::runner {

/// The folders of the control groups whose limits of a controller, like "memory", hold for this
/// process: its own group and those above it, of either version of control groups. A folder may
/// not exist, or lack the file in question.
std::vector<std::filesystem::path> controlGroups(const std::string& controller);

}  // namespace vtlcmd::runner

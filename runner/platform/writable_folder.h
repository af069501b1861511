#pragma once

#include <filesystem>

namespace vtlcmd::runner {

/// Throws std::system_error where no file can be made in a folder. An empty path is the working
/// directory. Leaves nothing behind, whatever ends the process meanwhile.
void requireWritableFolder(const std::filesystem::path& folder);

}  // namespace vtlcmd::runner

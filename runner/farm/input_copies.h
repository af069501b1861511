#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "farm/farm_folder.h"

namespace vtlcmd::runner {

/// A file's name from the working directory, its links followed: as such it names the copy too, in
/// the copy of the working directory. Throws std::filesystem::filesystem_error.
std::string relativeName(const std::string& file);

/// Copies the files with relative names, and the working directory itself without what is in it,
/// into the folder's tree of inputs. Gives the others, which stay where they are. Throws
/// std::filesystem::filesystem_error.
std::vector<std::filesystem::path> copyInputs(const FarmFolder& folder,
                                              const std::vector<std::filesystem::path>& files);

}  // namespace vtlcmd::runner

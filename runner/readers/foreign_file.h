#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "readers/data_file.h"

namespace vtlcmd::runner {

/// The word on the command line that makes the program the process that reads a file; the words
/// behind it are between the two functions here.
inline constexpr const char* readerCommand = "read-file";

/// Reads a regular file in a process of its own, within the limits of `readLimits`. Throws
/// ReadError, which doesn't name the file.
std::vector<DataValue> readForeignFile(const std::filesystem::path& file, NpyForm form);

/// Is that process: limits itself, reads the file and writes to the standard output what is in it.
void serveForeignFile(const std::vector<std::string>& words);

}  // namespace vtlcmd::runner

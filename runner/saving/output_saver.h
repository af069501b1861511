#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "saving/file_format.h"
#include "saving/frame_file_name.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// Where the values of an output are saved, frame by frame.
struct SavedOutput {
  std::string output;
  ValueType type;
  FrameFileName file;
  const FileFormat* format;
};

/// Saves the value of a frame in a file that appears whole or not at all. `filesRead`: files that
/// aren't written over, by `fileIdentity`. Gives what a user should know of the file, empty for
/// nothing. Throws std::system_error and std::invalid_argument, whose texts begin with the file.
std::string saveValue(const SavedOutput& saved, double frame, const Orvel::Value& value,
                      const std::set<std::filesystem::path>& filesRead);

}  // namespace vtlcmd::runner

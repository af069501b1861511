#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "readers/npy.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {

/// A value that a data file has.
struct DataValue {
  /// Its name in the file; empty in files that have one value without a name.
  std::string name;
  Orvel::Value value;
  /// Of an array.
  std::optional<NpyFacts> facts;
  /// What the file has besides and the value hasn't.
  std::vector<std::string> warnings;
};

/// A path to one of a data file's values, like scan.npz/positions, or to the only one.
struct ValuePath {
  std::filesystem::path file;
  /// Empty for the only one.
  std::string name;
};

/// The last piece of a path names a value if the rest is a regular file.
ValuePath valuePathFrom(const std::filesystem::path& path);

/// What is in a data file, read by the reader for its extension, a mesh's for unknown ones. Files
/// of foreign formats are read in a process of their own, within the limits of `readLimits`. `form`
/// is for arrays. Throws ReadError, which names the file.
std::vector<DataValue> readDataFile(const std::filesystem::path& file, NpyForm form);

/// The same for a file that should have arrays; one without a reader for its extension is taken for
/// an array file.
std::vector<DataValue> readArrays(const std::filesystem::path& file, NpyForm form);

/// The same for an array file that comes from the standard input.
std::vector<DataValue> readStandardInputArray(NpyForm form);

/// A mesh as an object with the component properties `points`, `faces` and `corners`. Its data
/// properties are `position`, one a point; `face_size`, one a face; `corner_point`, the point of
/// each corner; and as far as the file has them for all `normal`, `uv` and `color`, one a corner,
/// or one a point in a mesh without faces. Throws ReadError, which names the file.
DataValue readMesh(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

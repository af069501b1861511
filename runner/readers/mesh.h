#pragma once

#include <filesystem>
#include <string>

#include "host/value_types.h"

namespace vtlcmd::runner {

/// The library that reads meshes, with its version; "none" in a build without one.
std::string meshReaderName();

/// Reads a mesh file, OBJ, PLY, STL or glTF among others, as an object with the component
/// properties `points`, `faces` and `corners`. Its data properties are `position`, one a point;
/// `face_size`, one a face; `corner_point`, the point of each corner; and as far as the file has
/// them `normal`, `uv` and `color`, one a corner. Corners at equal positions share a point. In a
/// file without faces every vertex is a point, and the data is by point. Throws ReadError, for
/// every file in a build without a library that reads meshes.
ObjectPtr readMesh(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <string>

#include "readers/mesh_data.h"

namespace vtlcmd::runner {

/// The library that reads meshes of foreign formats, with its version; "none" in a build without
/// one.
std::string meshReaderName();

/// The meshes of a file, each where the scene puts it. `anywhere` lets the file name others outside
/// its own folder. Throws ReadError, which doesn't name the file, for every file in a build without
/// a library that reads meshes. To be called in a process with limits: the library isn't safe from
/// what files say.
MeshData importMesh(const std::filesystem::path& file, bool anywhere);

}  // namespace vtlcmd::runner

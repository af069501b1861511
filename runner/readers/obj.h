#pragma once

#include "readers/byte_source.h"
#include "readers/mesh_data.h"

namespace vtlcmd::runner {

/// The polygons of an OBJ file: its vertices as points, in order and number, with the texture
/// coordinates, normals and colours of corners. Materials and groups have no place in a mesh;
/// lines, points as elements and free-form geometry are counted as left out. Throws ReadError,
/// which names the line and leaves it to the caller to name the file.
MeshData parseObj(ByteSource& file);

}  // namespace vtlcmd::runner

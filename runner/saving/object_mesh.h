#pragma once

#include "readers/mesh_data.h"
#include "vtlcmd/host/imports/vantrel_object.h"

namespace vtlcmd::runner {

/// The mesh of an object that has the properties that `readMesh` gives, and no others. Normals,
/// coordinates of textures and colours are there for all corners, or all points of a mesh without
/// faces, or not at all. Throws std::invalid_argument, which names the property that doesn't fit.
MeshData meshOf(const Vantrel::Object& object);

}  // namespace vtlcmd::runner

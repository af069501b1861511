#pragma once

#include <iosfwd>
#include <string>

#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// Writes a mesh, an Object, as a binary PLY file with all bits of its floats. The file has
/// normals, coordinates of textures and colours by point; a point whose corners differ in them is
/// there once for each difference, behind all others. Gives a remark when there are such points,
/// else an empty text. Throws std::invalid_argument for an object that is no such mesh, before
/// anything is written.
std::string writePly(std::ostream& stream, const Orvel::Value& value);

}  // namespace vtlcmd::runner

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vtlcmd/host/imports/vantrel_math.h"

namespace vtlcmd::runner {

/// What a mesh file says, points in its order and number.
struct MeshData {
  std::vector<Vantrel::Math::float3> positions;
  /// The corners of each face.
  std::vector<std::int32_t> faceSizes;
  /// The point of each corner, face by face.
  std::vector<std::int32_t> cornerPoints;
  /// One a corner, or one a point in a mesh without faces; of another number when the file has them
  /// for some only.
  std::vector<Vantrel::Math::float3> normals;
  std::vector<Vantrel::Math::float2> uvs;
  std::vector<Vantrel::Math::float4> colors;
  /// What of the file isn't in here and has no place here: "2 lines". Empty when there is nothing.
  std::string leftOut;
};

}  // namespace vtlcmd::runner

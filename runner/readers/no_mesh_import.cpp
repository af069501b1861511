#include "readers/mesh_import.h"
#include "readers/read_error.h"

/// For builds without a library that reads meshes.

namespace vtlcmd::runner {

std::string meshReaderName() { return "none"; }

MeshData importMesh(const std::filesystem::path&, bool) {
  throw ReadError("this program was built without a reader for such meshes");
}

}  // namespace vtlcmd::runner

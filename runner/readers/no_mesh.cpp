#include "readers/mesh.h"
#include "readers/read_error.h"

/// For builds without a library that reads meshes.

namespace vtlcmd {

std::string meshReaderName() { return "none"; }

ObjectPtr readMesh(const std::filesystem::path& file) {
  throw ReadError(file.string() + ": this program was built without a mesh reader");
}

}  // namespace vtlcmd

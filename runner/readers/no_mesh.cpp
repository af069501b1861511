#include "readers/mesh.h"
#include "readers/read_error.h"
#include "text/path_text.h"

/// For builds without a library that reads meshes.

namespace vtlcmd::runner {

std::string meshReaderName() { return "none"; }

ObjectPtr readMesh(const std::filesystem::path& file) {
  throw ReadError(fileText(file) + ": this program was built without a mesh reader");
}

}  // namespace vtlcmd::runner

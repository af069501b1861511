#include "readers/archive.h"
#include "readers/read_error.h"

/// For builds without a library that reads archives.

namespace vtlcmd::runner {

std::string archiveReaderName() { return "none"; }

void readArchive(const std::filesystem::path&,
                 const std::function<void(const std::string&, std::span<const unsigned char>)>&) {
  throw ReadError("this program was built without a reader for archives");
}

}  // namespace vtlcmd::runner

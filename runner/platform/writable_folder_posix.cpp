#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

#include "platform/writable_folder.h"

namespace vtlcmd::runner {

void requireWritableFolder(const std::filesystem::path& folder) {
  const std::filesystem::path place = folder / ".";
  constexpr mode_t ownerOnly = 0600;
  // A file without a name, which no other process sees.
  const int file = ::open(place.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, ownerOnly);
  if (file >= 0) {
    ::close(file);
    return;
  }
  // Not every file system has such files; asking tells less, but enough.
  if ((errno == EOPNOTSUPP || errno == EISDIR) &&
      ::faccessat(AT_FDCWD, place.c_str(), W_OK | X_OK, AT_EACCESS) == 0)
    return;
  throw std::system_error(errno, std::generic_category());
}

}  // namespace vtlcmd::runner

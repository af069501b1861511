#include <cerrno>
#include <fcntl.h>
#include <malloc.h>
#include <system_error>
#include <unistd.h>

#include "platform/process.h"

namespace vtlcmd::runner {
namespace {

/// In bytes: the most that is kept, and the size from which a block is always given back, which is
/// the largest that the allocator takes.
constexpr int mostKept = 256 << 20;
constexpr int leastReturned = 32 << 20;

}  // namespace

std::vector<std::string> commandLineWords(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

void prepareStandardStreams() {}

void keepFreedMemory() noexcept {
  // There are no other threads yet.
  ::mallopt(M_TRIM_THRESHOLD, mostKept);       // NOLINT(concurrency-mt-unsafe)
  ::mallopt(M_MMAP_THRESHOLD, leastReturned);  // NOLINT(concurrency-mt-unsafe)
}

std::FILE* takeStandardOutput() {
  const int own = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  std::FILE* const stream = own < 0 ? nullptr : ::fdopen(own, "wb");
  if (stream == nullptr || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0)
    throw std::system_error(errno, std::generic_category());
  return stream;
}

bool outputGoesToTerminal() { return ::isatty(STDOUT_FILENO) != 0; }

bool errorsGoToTerminal() { return ::isatty(STDERR_FILENO) != 0; }

std::filesystem::path ownFile() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error);
}

}  // namespace vtlcmd::runner

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <string_view>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include "support/failing_memory.h"

/// Lets one call of the program fail, counted from the start of its main:
///   FAILING_CALL    allocation, read or write
///   FAILING_NUMBER  which one, from 0; none when it isn't given
///   CALLS_FILE      where the number of such calls is written at the end of a program

namespace {

using vtlcmd::testing::FailingMemory;
using vtlcmd::testing::Failure;

enum class Call { none, read, write };

Call countedCall = Call::none;
/// None when a process makes fewer.
std::size_t failingNumber = std::numeric_limits<std::size_t>::max();
const char* callsFile = nullptr;
std::atomic<std::size_t> calls;

bool fails(Call call, int error) noexcept {
  if (call != countedCall || calls++ != failingNumber) return false;
  errno = error;
  return true;
}

void writeCalls() {
  char text[32];
  const std::size_t made = countedCall == Call::none ? FailingMemory::allocations() : calls.load();
  const int length = std::snprintf(text, sizeof text, "%zu\n", made);
  const long file = syscall(SYS_openat, AT_FDCWD, callsFile, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  syscall(SYS_write, file, text, length);
  syscall(SYS_close, file);
}

}  // namespace

// Libraries find these in the program before the C library's.
#pragma GCC visibility push(default)
extern "C" {

ssize_t read(int file, void* bytes, std::size_t size) {
  return fails(Call::read, EIO) ? -1 : syscall(SYS_read, file, bytes, size);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  return fails(Call::write, ENOSPC) ? -1 : syscall(SYS_write, file, bytes, size);
}

// What the standard output is written with; standard error goes on, to tell of it.
std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  if (file != stderr && fails(Call::write, ENOSPC)) return 0;
  return fwrite_unlocked(bytes, size, count, file);
}

ssize_t writev(int file, const iovec* parts, int count) {
  return fails(Call::write, ENOSPC) ? -1 : syscall(SYS_writev, file, parts, count);
}
}
#pragma GCC visibility pop

/// The program's own main.
int programMain(int count, char** words);

int main(int count, char** words) {
  if (const char* number = std::getenv("FAILING_NUMBER"))
    failingNumber = std::strtoul(number, nullptr, 10);
  callsFile = std::getenv("CALLS_FILE");
  if (callsFile != nullptr) std::atexit(writeCalls);
  const char* const call = std::getenv("FAILING_CALL");
  const std::string_view name = call == nullptr ? "" : call;
  if (name == "read") countedCall = Call::read;
  if (name == "write") countedCall = Call::write;
  // Until the process ends.
  if (name == "allocation") new FailingMemory(failingNumber, Failure::once);
  return programMain(count, words);
}

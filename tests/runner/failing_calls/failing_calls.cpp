#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

/// Lets one call of the program fail, counted from the start of its main:
///   FAILING_CALL    allocation, read or write
///   FAILING_NUMBER  which one, from 0; none when it isn't given
///   CALLS_FILE      where the number of such calls is written at the end of a program

// The C library's own, under the names that it keeps for those who replace them.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

enum class Call { none, allocation, read, write };

Call counted = Call::none;
long failingNumber = -1;
const char* callsFile = nullptr;
std::atomic<long> calls;

bool fails(Call call, int error) noexcept {
  if (call != counted || calls++ != failingNumber) return false;
  errno = error;
  return true;
}

void writeCalls() {
  char text[32];
  const int length = std::snprintf(text, sizeof text, "%ld\n", calls.load());
  const long file = syscall(SYS_openat, AT_FDCWD, callsFile, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  syscall(SYS_write, file, text, length);
  syscall(SYS_close, file);
}

Call callNamed(const char* name) {
  if (name == nullptr) return Call::none;
  if (std::strcmp(name, "allocation") == 0) return Call::allocation;
  return std::strcmp(name, "read") == 0 ? Call::read : Call::write;
}

}  // namespace

// Libraries find these in the program before the C library's.
#pragma GCC visibility push(default)
extern "C" {

void* malloc(std::size_t size) {
  return fails(Call::allocation, ENOMEM) ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
  return fails(Call::allocation, ENOMEM) ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
  return fails(Call::allocation, ENOMEM) ? nullptr : __libc_realloc(block, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return fails(Call::allocation, ENOMEM) ? nullptr : __libc_memalign(alignment, size);
}

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
  if (const char* number = std::getenv("FAILING_NUMBER")) failingNumber = std::atol(number);
  callsFile = std::getenv("CALLS_FILE");
  if (callsFile != nullptr) std::atexit(writeCalls);
  counted = callNamed(std::getenv("FAILING_CALL"));
  return programMain(count, words);
}

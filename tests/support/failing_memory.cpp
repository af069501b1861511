#include "support/failing_memory.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>

// The C library's own, under the names that it keeps for those who replace them.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

using vtlcmd::testing::Failure;

std::atomic<std::size_t> live;
bool armed = false;
Failure failureKind = Failure::once;
std::size_t failing = 0;
std::atomic<std::size_t> asked;

bool fails() noexcept {
  if (!armed) return false;
  const std::size_t number = asked++;
  if (number < failing || (number > failing && failureKind == Failure::once)) return false;
  errno = ENOMEM;
  return true;
}

void* counted(void* block) noexcept {
  if (block != nullptr) ++live;
  return block;
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) { return fails() ? nullptr : counted(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) {
  return fails() ? nullptr : counted(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size) {
  if (fails()) return nullptr;
  void* const grown = __libc_realloc(block, size);
  return block == nullptr ? counted(grown) : grown;
}

void* memalign(std::size_t alignment, std::size_t size) {
  return fails() ? nullptr : counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
  *block = memalign(alignment, size);
  return *block == nullptr ? ENOMEM : 0;
}

void free(void* block) {
  if (block != nullptr) --live;
  __libc_free(block);
}
}

namespace vtlcmd::testing {

FailingMemory::FailingMemory(std::size_t number, Failure failure) noexcept {
  failing = number;
  failureKind = failure;
  asked = 0;
  armed = true;
}

FailingMemory::~FailingMemory() { armed = false; }

std::size_t FailingMemory::allocations() noexcept { return asked; }

bool FailingMemory::hasFailed() noexcept { return asked > failing; }

std::size_t liveBlocks() noexcept { return live; }

}  // namespace vtlcmd::testing

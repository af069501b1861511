#include "support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> allocations;
std::atomic<std::ptrdiff_t> inUse;
void (*watcher)(void*) = nullptr;
void* watcherState = nullptr;
}  // namespace

std::size_t vtlcmd::testing::allocationCount() { return allocations; }

std::ptrdiff_t vtlcmd::testing::blocksInUse() { return inUse; }

void vtlcmd::testing::watchAllocations(void (*atAllocation)(void* state), void* state) {
  watcher = atAllocation;
  watcherState = state;
}

void* operator new(std::size_t size) {
  ++allocations;
  if (watcher != nullptr) watcher(watcherState);
  if (void* block = std::malloc(size == 0 ? 1 : size)) {
    ++inUse;
    return block;
  }
  throw std::bad_alloc();
}

// A sanitizer's own would not be a pair with the delete below.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept try {
  return operator new(size);
} catch (const std::bad_alloc&) {
  return nullptr;
}

void operator delete(void* block) noexcept {
  if (block != nullptr) --inUse;
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

#ifndef _WIN32  // where another function ends them
// The blocks of arrays. One that isn't there may not be given back.
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto aligned = static_cast<std::size_t>(alignment);
  if (void* block = std::aligned_alloc(aligned, (size + aligned - 1) / aligned * aligned)) {
    ++inUse;
    return block;
  }
  throw std::bad_alloc();
}

void operator delete(void* block, std::align_val_t) noexcept {
  --inUse;
  std::free(block);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}
#endif

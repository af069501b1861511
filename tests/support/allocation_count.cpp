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

void operator delete(void* block) noexcept {
  if (block != nullptr) --inUse;
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

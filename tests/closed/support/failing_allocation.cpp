#include "closed/support/failing_allocation.h"

#include <atomic>
#include <cstdlib>
#include <limits>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> live;
std::atomic<std::size_t> left = never;

void* counted(void* block) {
  if (block == nullptr) throw std::bad_alloc();
  ++live;
  return block;
}

void failInTurn() {
  if (left == never) return;
  if (left == 0) {
    left = never;
    throw std::bad_alloc();
  }
  --left;
}

void giveBack(void* block) noexcept {
  if (block != nullptr) --live;
  std::free(block);
}

}  // namespace

std::size_t Orvel::testing::liveBlocks() noexcept { return live; }
void Orvel::testing::failAllocationAfter(std::size_t count) noexcept { left = count; }
void Orvel::testing::cancelAllocationFailure() noexcept { left = never; }

void* operator new(std::size_t size) {
  failInTurn();
  return counted(std::malloc(size == 0 ? 1 : size));
}

void* operator new(std::size_t size, std::align_val_t alignment) {
  failInTurn();
  const auto step = static_cast<std::size_t>(alignment) < sizeof(void*)
                        ? sizeof(void*)
                        : static_cast<std::size_t>(alignment);
  void* block = nullptr;
  return counted(posix_memalign(&block, step, size == 0 ? 1 : size) == 0 ? block : nullptr);
}

void operator delete(void* block) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t) noexcept { giveBack(block); }
void operator delete(void* block, std::align_val_t) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { giveBack(block); }

#include "closed/support/failing_allocation.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>

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

// Portably: the block that malloc gave stands in the word before the aligned one.
void* operator new(std::size_t size, std::align_val_t alignment) {
  failInTurn();
  std::size_t space = size + static_cast<std::size_t>(alignment);
  void* whole = counted(std::malloc(sizeof whole + space));
  void* block = static_cast<char*>(whole) + sizeof whole;
  std::align(static_cast<std::size_t>(alignment), size, block, space);
  std::memcpy(static_cast<char*>(block) - sizeof whole, &whole, sizeof whole);
  return block;
}

void operator delete(void* block) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t) noexcept { giveBack(block); }
void operator delete(void* block, std::align_val_t) noexcept {
  if (block == nullptr) return;
  void* whole = nullptr;
  std::memcpy(&whole, static_cast<char*>(block) - sizeof whole, sizeof whole);
  giveBack(whole);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}

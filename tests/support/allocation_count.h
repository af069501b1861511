#pragma once

#include <cstddef>

namespace vtlcmd::testing {

/// How often this program has called operator new so far, on all threads.
std::size_t allocationCount();

/// How many blocks of this program's are in use.
std::ptrdiff_t blocksInUse();

/// The blocks in use that the second of two calls leaves behind; the first may set up what stays.
template <typename Operation>
std::ptrdiff_t blocksLeftBy(Operation operation) {
  operation();
  const std::ptrdiff_t before = blocksInUse();
  operation();
  return blocksInUse() - before;
}

/// Calls `atAllocation(state)` before each allocation of this program, until it is given null. The
/// function must not allocate.
void watchAllocations(void (*atAllocation)(void* state), void* state);

}  // namespace vtlcmd::testing

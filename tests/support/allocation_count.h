#pragma once

#include <cstddef>

namespace vtlcmd::testing {

/// How often this program has called operator new so far, on all threads.
std::size_t allocationCount();

/// Calls `atAllocation(state)` before each allocation of this program, until it is given null. The
/// function must not allocate.
void watchAllocations(void (*atAllocation)(void* state), void* state);

}  // namespace vtlcmd::testing

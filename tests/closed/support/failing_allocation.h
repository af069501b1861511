#pragma once

#include <cstddef>
#include <new>

namespace Orvel::testing {

/// Whether this program's operator new is that of the shared libraries too.
#if defined(_WIN32)
inline constexpr bool reachesLibraries = false;
#else
inline constexpr bool reachesLibraries = true;
#endif

/// Blocks of operator new that nobody has given back yet.
std::size_t liveBlocks() noexcept;

/// From now on `count` calls of operator new succeed, the next one throws, and all behind it
/// succeed again.
void failAllocationAfter(std::size_t count) noexcept;
void cancelAllocationFailure() noexcept;

/// Runs the operation with its first allocation failing, then its second, until it gets through.
/// Gives the number of failures; `checkAfterFailure` is called after each one.
template <typename Operation, typename Check>
std::size_t failEveryAllocation(Operation operation, Check checkAfterFailure) {
  for (std::size_t failures = 0;; ++failures) {
    failAllocationAfter(failures);
    try {
      operation();
    } catch (const std::bad_alloc&) {
      checkAfterFailure();
      continue;
    }
    cancelAllocationFailure();
    return failures;
  }
}

}  // namespace Orvel::testing

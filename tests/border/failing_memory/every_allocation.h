#pragma once

#include <gtest/gtest.h>
#include <new>
#include <string>

#include "support/failing_memory.h"

namespace vtlcmd::testing {

/// More than any operation here asks for; one that goes on failing fails the test.
inline constexpr std::size_t mostAllocations = 20'000;

/// Runs `operate(state)` on a new state, which `make()` gives, with its first allocation failing,
/// then its second, and so on until it gets through; first each alone, then with all behind it. Out
/// of memory leaves as std::bad_alloc, nothing stays allocated, and `check(state, threw)` holds
/// afterwards. Gives how many allocations failed.
template <typename Make, typename Operate, typename Check>
std::size_t failEveryAllocation(const Make& make, const Operate& operate, const Check& check) {
  std::size_t failures = 0;
  for (const Failure failure : {Failure::once, Failure::lasting}) {
    for (std::size_t number = 0; number < mostAllocations; ++number) {
      const std::string place = "allocation " + std::to_string(number) +
                                (failure == Failure::once ? " alone" : " and all behind it");
      SCOPED_TRACE(place);
      const std::size_t before = liveBlocks();
      bool failed = false;
      {
        auto state = make();
        bool threw = false;
        {
          const FailingMemory memory(number, failure);
          try {
            operate(state);
          } catch (const std::bad_alloc&) {
            threw = true;
          }
          failed = FailingMemory::hasFailed();
        }
        EXPECT_EQ(threw, failed);
        check(state, threw);
      }
      EXPECT_EQ(liveBlocks(), before);
      if (::testing::Test::HasFailure()) return failures;
      if (!failed) break;
      ++failures;
    }
  }
  return failures;
}

}  // namespace vtlcmd::testing

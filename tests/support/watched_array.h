#pragma once

#include <gtest/gtest.h>

#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace vtlcmd::testing {

/// Counts how often its object was ended; the object stays all the same.
class WatchedBlock final : public Orvel::Internal::ControlBlock {
 public:
  int ends = 0;

 private:
  void librarySlot() noexcept override {}
  void endObject() noexcept override { ++ends; }
};

/// An array and what would own it.
template <typename Element>
struct WatchedArray {
  /// The one use that the block begins with, or a pointer without block, whose uses nobody counts.
  Orvel::Ptr<Orvel::Array<Element>> shared(bool counted) {
    return {&array, counted ? &block : nullptr};
  }

  WatchedBlock block;
  Orvel::Array<Element> array;
};

/// That `operation` gives back each use that it took, and so ends nothing.
template <typename Element, typename Operation>
void expectUsesGivenBack(const Element& element, Operation operation) {
  for (const bool counted : {true, false}) {
    WatchedArray<Element> watched;
    watched.array.append(element);
    {
      const auto held = watched.shared(counted);
      operation(held);
      EXPECT_EQ(watched.block.useCount, 1U);
      EXPECT_EQ(watched.block.ends, 0);
    }
    EXPECT_EQ(watched.block.ends, counted ? 1 : 0);
  }
}

}  // namespace vtlcmd::testing

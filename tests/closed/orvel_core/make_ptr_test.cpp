#include "vtlcmd/stand_in/make_ptr.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>
#include <vector>

namespace Orvel {
namespace {

/// Counts the objects that live.
struct Tracked {
  explicit Tracked(int& counter) : live(counter) { ++live; }
  Tracked(const Tracked&) = delete;
  Tracked& operator=(const Tracked&) = delete;
  ~Tracked() { --live; }
  int& live;
};

TEST(MakePtr, LastUseEndsTheObject) {
  int live = 0;
  Ptr<Tracked> pointer = makePtr<Tracked>(live);
  EXPECT_EQ(useCount(pointer), 1U);
  EXPECT_EQ(&pointer->live, &live);
  {
    const Ptr<Tracked> copy = pointer;
    EXPECT_EQ(useCount(pointer), 2U);
    EXPECT_EQ(useCount(copy), 2U);
  }
  EXPECT_EQ(live, 1);
  pointer = {};
  EXPECT_EQ(live, 0);
  EXPECT_EQ(useCount(pointer), 0U);
}

TEST(MakePtr, MutableOneHandsItsUseOn) {
  int live = 0;
  {
    MutablePtr<Tracked> made = makeMutable<Tracked>(live);
    const Ptr<Tracked> taken = std::move(made);
    EXPECT_EQ(useCount(taken), 1U);
    EXPECT_EQ(made.get(), nullptr);  // NOLINT(bugprone-use-after-move): nulled by contract
  }
  EXPECT_EQ(live, 0);
}

TEST(MakePtr, EveryViewCountsTheSameUses) {
  int live = 0;
  Ptr<void> opaque;
  {
    const Ptr<Tracked> pointer = makePtr<Tracked>(live);
    const Ptr<const Tracked> constant = pointer;
    opaque = Ptr<void>(pointer);
    EXPECT_EQ(useCount(pointer), 3U);
  }
  EXPECT_EQ(useCount(opaque), 1U);
  const Ptr<Tracked> back = std::move(opaque).castTo<Tracked>();
  EXPECT_EQ(useCount(back), 1U);
  EXPECT_EQ(live, 1);
}

TEST(MakePtr, ThrowingConstructorLeavesNothing) {
  struct Throws {
    Throws() { throw std::runtime_error("no object"); }
  };
  EXPECT_THROW(makePtr<Throws>(), std::runtime_error);
}

TEST(MakePtr, UsesAreCountedAcrossThreads) {
  int live = 0;
  Ptr<Tracked> pointer = makePtr<Tracked>(live);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
      threads.emplace_back([own = pointer] {
        for (int i = 0; i < 20000; ++i) {
          const Ptr<Tracked> copy = own;
          const Ptr<const Tracked> constant = copy;
        }
      });
    }
  }
  EXPECT_EQ(useCount(pointer), 1U);
  EXPECT_EQ(live, 1);
  pointer = {};
  EXPECT_EQ(live, 0);
}

}  // namespace
}  // namespace Orvel

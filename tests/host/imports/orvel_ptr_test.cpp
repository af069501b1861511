#include "vtlcmd/host/imports/orvel_ptr.h"

#include <gtest/gtest.h>
#include <utility>

namespace Orvel {
namespace {

/// A control block as another compiler lays it out: nothing but a table address and a count.
struct RawBlock {
  const void* const* table;
  std::uint64_t useCount;
};

int firstSlotCalls;
int secondSlotCalls;
void firstSlot(void*) { ++firstSlotCalls; }
void secondSlot(void*) { ++secondSlotCalls; }

const void* const rawTable[] = {reinterpret_cast<const void*>(&firstSlot),
                                reinterpret_cast<const void*>(&secondSlot)};

class RawControlBlock : public ::testing::Test {
 protected:
  RawControlBlock() { firstSlotCalls = secondSlotCalls = 0; }

  Internal::ControlBlock* control() { return reinterpret_cast<Internal::ControlBlock*>(&block_); }

  RawBlock block_{rawTable, 1};
  int object_ = 7;
};

TEST_F(RawControlBlock, LastReleaseCallsTheSecondSlotOnce) {
  {
    Ptr<int> pointer(&object_, control());
    const Ptr<int> copy = pointer;
    EXPECT_EQ(block_.useCount, 2U);
    const Ptr<int> moved = std::move(pointer);
    EXPECT_EQ(block_.useCount, 2U);
    EXPECT_EQ(pointer.pointer, nullptr);  // NOLINT(bugprone-use-after-move): nulled by contract
    EXPECT_EQ(pointer.control, nullptr);
    EXPECT_EQ(*moved, 7);
    EXPECT_EQ(secondSlotCalls, 0);
  }
  EXPECT_EQ(block_.useCount, 0U);
  EXPECT_EQ(secondSlotCalls, 1);
  EXPECT_EQ(firstSlotCalls, 0);
}

TEST_F(RawControlBlock, TakingOverFromAMutablePointerCountsNothing) {
  MutablePtr<int> owner(&object_, control());
  const Ptr<int> pointer = std::move(owner);
  EXPECT_EQ(block_.useCount, 1U);
  EXPECT_EQ(owner.control, nullptr);  // NOLINT(bugprone-use-after-move): nulled by contract
  const Ptr<const int> view = pointer;
  EXPECT_EQ(block_.useCount, 2U);
  EXPECT_EQ(view.pointer, &object_);
}

TEST_F(RawControlBlock, AssignmentReleasesTheOldObject) {
  Ptr<int> pointer(&object_, control());
  pointer = Ptr<int>();
  EXPECT_EQ(secondSlotCalls, 1);
}

TEST(Ptr, WithoutAControlBlockNothingIsCounted) {
  int object = 1;
  const Ptr<int> pointer(&object, nullptr);
  const Ptr<int> copy = pointer;
  EXPECT_EQ(copy.pointer, &object);
  EXPECT_EQ(copy.control, nullptr);
}

}  // namespace
}  // namespace Orvel

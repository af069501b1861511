#include "frames/frame_queue.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(FrameQueue, GivesAllPlacesInOrder) {
  FrameQueue queue(2);
  EXPECT_EQ(queue.left(), 2);
  EXPECT_EQ(queue.take(), 0);
  EXPECT_EQ(queue.take(), 1);
  EXPECT_EQ(queue.take(), std::nullopt);
  EXPECT_EQ(queue.left(), 0);
}

TEST(FrameQueue, LeavesOutWhatIsDone) {
  FrameQueue queue(5, {true, false, true, false, true});
  EXPECT_EQ(queue.left(), 2);
  EXPECT_EQ(queue.take(), 1);
  EXPECT_EQ(queue.take(), 3);
  EXPECT_EQ(queue.take(), std::nullopt);
}

TEST(FrameQueue, GivesWhatCameBackFirst) {
  FrameQueue queue(4);
  for (int i = 0; i < 3; ++i) static_cast<void>(queue.take());
  queue.putBack(2);
  queue.putBack(0);
  EXPECT_EQ(queue.left(), 3);
  EXPECT_EQ(queue.take(), 0);
  EXPECT_EQ(queue.take(), 2);
  EXPECT_EQ(queue.take(), 3);
  EXPECT_EQ(queue.left(), 0);
}

}  // namespace
}  // namespace vtlcmd::runner

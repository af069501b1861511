#include "frames/frame_order.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

FinishedFrame finished(std::size_t place) {
  FinishedFrame frame;
  frame.place = place;
  frame.content = std::string(1000, 'x');
  return frame;
}

std::optional<std::size_t> placeOf(const std::optional<FinishedFrame>& frame) {
  return frame ? std::optional(frame->place) : std::nullopt;
}

TEST(FrameOrder, WaitsForTheFrameWhoseTurnItIs) {
  FrameOrder order{FrameQueue(3)};
  EXPECT_EQ(order.awaited(), 0);
  order.add(finished(1));
  EXPECT_EQ(placeOf(order.next()), std::nullopt);
  order.add(finished(0));
  EXPECT_EQ(placeOf(order.next()), 0);
  EXPECT_EQ(placeOf(order.next()), 1);
  EXPECT_EQ(placeOf(order.next()), std::nullopt);
  EXPECT_EQ(order.awaited(), 2);
  order.add(finished(2));
  EXPECT_EQ(placeOf(order.next()), 2);
  EXPECT_EQ(order.awaited(), std::nullopt);
}

TEST(FrameOrder, TheFrameWhoseTurnItIsNeedNotWait) {
  FrameOrder order{FrameQueue(3)};
  EXPECT_FALSE(order.takeTurn(1));
  order.add(finished(1));
  EXPECT_TRUE(order.takeTurn(0));
  EXPECT_EQ(placeOf(order.next()), 1);
  EXPECT_FALSE(order.takeTurn(1));
  EXPECT_TRUE(order.takeTurn(2));
  EXPECT_EQ(order.awaited(), std::nullopt);
}

TEST(FrameOrder, DoesNotWaitForWhatIsDone) {
  FrameOrder order{FrameQueue(3, {true, false, true})};
  order.add(finished(1));
  EXPECT_EQ(placeOf(order.next()), 1);
}

TEST(FrameOrder, GivesWhatIsThereInTheEnd) {
  FrameOrder order{FrameQueue(9)};
  order.add(finished(5));
  order.add(finished(3));
  EXPECT_EQ(placeOf(order.nextPresent()), 3);
  EXPECT_EQ(placeOf(order.nextPresent()), 5);
  EXPECT_EQ(placeOf(order.nextPresent()), std::nullopt);
}

TEST(FrameOrder, KnowsWhatWaits) {
  FrameOrder order{FrameQueue(9)};
  EXPECT_EQ(order.size(), 0);
  order.add(finished(5));
  order.add(finished(6));
  EXPECT_GE(order.size(), 2000);
  static_cast<void>(order.nextPresent());
  static_cast<void>(order.nextPresent());
  EXPECT_EQ(order.size(), 0);
}

}  // namespace
}  // namespace vtlcmd::runner

#include "frames/frame_collector.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace vtlcmd::runner {
namespace {

constexpr std::size_t frameCount = 100;
constexpr std::size_t mebi = std::size_t{1} << 20U;

FrameList framesFromOne() {
  FrameList frames;
  frames.append(1, 1, frameCount);
  return frames;
}

class FrameCollectorTest : public testing::Test {
 protected:
  /// A frame that says so much.
  static FinishedFrame finished(std::size_t place, std::size_t bytes = 0) {
    FinishedFrame frame;
    frame.place = place;
    frame.outcome.frameText = std::to_string(place + 1);
    frame.outcome.failure = Failure::none;
    frame.messages.push_back({vtlcmdSource, levelProgress, std::string(bytes, 'x'),
                              VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent});
    return frame;
  }

  FrameCollector collector(bool failFast = false) {
    return {
        frames_,
        queue_,
        nullptr,
        printer_,
        progress_,
        report_,
        {failFast, [this](const FrameOutcome& outcome) { shown_.push_back(outcome.frameText); }}};
  }

  FrameList frames_ = framesFromOne();
  FrameQueue queue_{frameCount};
  std::ostringstream report_;
  std::ostringstream problems_;
  VtlCmdLogger logger_{10};
  Progress progress_{problems_, ProgressForm::none, frameCount};
  FramePrinter printer_{logger_, levelProgress, {{report_}, {problems_}}, progress_, true};
  std::vector<std::string> shown_;
};

TEST_F(FrameCollectorTest, IsFullOfSixtyFourMebibytesThatWait) {
  FrameCollector collector = this->collector();
  std::size_t place = 1;
  for (; place <= 63; ++place) {
    ASSERT_TRUE(collector.take(finished(place, mebi)));
    ASSERT_FALSE(collector.isFull()) << place;
  }
  ASSERT_TRUE(collector.take(finished(place, mebi)));
  EXPECT_TRUE(collector.isFull());
  EXPECT_EQ(collector.awaited(), 0);
  EXPECT_TRUE(shown_.empty());

  EXPECT_TRUE(collector.take(finished(0, 2 * mebi)));
  EXPECT_FALSE(collector.isFull());
  EXPECT_EQ(shown_.size(), place + 1);
  EXPECT_EQ(collector.awaited(), place + 1);
}

TEST_F(FrameCollectorTest, NothingWaitsThatComesInItsTurn) {
  FrameCollector collector = this->collector();
  for (std::size_t place = 0; place < frameCount; ++place) {
    ASSERT_TRUE(collector.take(finished(place, mebi)));
    ASSERT_FALSE(collector.isFull());
  }
  EXPECT_EQ(collector.awaited(), std::nullopt);
}

TEST_F(FrameCollectorTest, ManySmallFramesAreAsMuchAsTheyTake) {
  FrameCollector collector = this->collector();
  for (std::size_t place = 1; place < frameCount; ++place)
    ASSERT_TRUE(collector.take(finished(place)));
  EXPECT_FALSE(collector.isFull());
}

TEST_F(FrameCollectorTest, TheFirstFailedFrameOfAllEndsARunThatFailsFast) {
  FrameCollector collector = this->collector(true);
  FinishedFrame failed = finished(1);
  failed.outcome.failure = Failure::permanent;
  EXPECT_TRUE(collector.take(finished(2)));
  EXPECT_TRUE(collector.take(std::move(failed)));
  EXPECT_FALSE(collector.take(finished(0)));
  collector.takeNoMore();
  EXPECT_EQ(shown_, (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(collector.totals().failure, Failure::permanent);
}

TEST_F(FrameCollectorTest, WhatHasFinishedIsShownInTheEndWhateverIsMissing) {
  FrameCollector collector = this->collector();
  EXPECT_TRUE(collector.take(finished(5)));
  EXPECT_TRUE(collector.take(finished(3)));
  collector.takeNoMore();
  EXPECT_EQ(shown_, (std::vector<std::string>{"4", "6"}));
}

}  // namespace
}  // namespace vtlcmd::runner

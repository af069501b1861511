#include "farm/frames_text.h"

#include <gtest/gtest.h>

#include "command_line/job_frames.h"
#include "command_line/option_values.h"

namespace vtlcmd::runner {
namespace {

std::vector<double> numbersOf(const FrameList& list) {
  std::vector<double> numbers;
  for (std::size_t i = 0; i < list.size(); ++i) numbers.push_back(list[i]);
  return numbers;
}

std::string again(const std::string& frames) { return framesText(numbersOf(parseFrames(frames))); }

TEST(FramesText, HasRangesAndSingleFrames) {
  EXPECT_EQ(again("1-50"), "1-50");
  EXPECT_EQ(again("7"), "7");
  EXPECT_EQ(again("1,2"), "1,2");
  EXPECT_EQ(again("1,2,3,7,9,10,11"), "1-3,7,9-11");
  EXPECT_EQ(again("1-9x2,20-40:10"), "1-9x2,20-40x10");
  EXPECT_EQ(again("10-1"), "10-1");
  EXPECT_EQ(again("10-0x5"), "10-0x5");
  EXPECT_EQ(again("-3--1,-0.5"), "-3--1,-0.5");
  EXPECT_EQ(again("5,5,5"), "5,5,5");
  EXPECT_EQ(framesText({}), "");
}

TEST(FramesText, LeavesTheStepsErrorsOut) {
  EXPECT_EQ(again("1-2x0.1"), "1-2x0.1");
  EXPECT_EQ(again("0-1x0.333333333333"), "0-0.999999999999x0.333333333333");
}

TEST(FramesText, HasNoExponents) {
  EXPECT_EQ(again("0.0000001,1000000000000000000000"), "0.0000001,1000000000000000000000");
}

/// Any part of a job, as a text, is that part of the job.
TEST(FramesText, MeansTheSameFrames) {
  for (const std::string job :
       {"1-1000", "1-100x0.1", "5-0x0.01", "1,2,3,5,8,13.5,21-34x1.5", "-7-7x0.7",
        "1000000-1000005x0.001", "0-1000x0.0041666666666666666"}) {
    const FrameList whole = parseFrames(job);
    const std::vector<double> frames = numbersOf(whole);
    for (const std::size_t skipped : {1u, 3u, 7u}) {
      std::vector<double> part;
      for (std::size_t i = skipped; i < frames.size(); i += i % 5 == 0 ? skipped : 1)
        part.push_back(frames[i]);
      EXPECT_EQ(numbersOf(parsePartOfJob(framesText(part), job)), part) << job;
    }
  }
}

}  // namespace
}  // namespace vtlcmd::runner

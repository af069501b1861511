#include "execution/frame_list_writer.h"

#include <gtest/gtest.h>
#include <vector>

#include "command_line/job_frames.h"
#include "execution/frame_list_text.h"

namespace vtlcmd::runner {
namespace {

using FrameNumbers = std::vector<double>;

std::string textOf(const std::vector<double>& frames) {
  const std::string text = exactFramesText(frames);
  EXPECT_EQ(text.empty() ? FrameNumbers() : parseFrameList(text).numbers(), frames);
  return text;
}

TEST(ExactFramesText, RangesAreFound) {
  EXPECT_EQ(textOf({}), "");
  EXPECT_EQ(textOf({5}), "5");
  EXPECT_EQ(textOf({1, 2}), "1-2");
  EXPECT_EQ(textOf({1, 3}), "1,3");
  EXPECT_EQ(textOf({1, 3, 5}), "1-5x2");
  EXPECT_EQ(textOf({-2, -1, 0, 7, 9, 10, 11}), "-2-0,7,9-11");
  EXPECT_EQ(textOf({0.25, 0.5, 0.75}), "0.25-0.75x0.25");
  EXPECT_EQ(textOf({99999, 100000, 1000000}), "99999-100000,1000000");
}

TEST(ExactFramesText, NumbersKeepEveryBit) {
  textOf({0.1, 0.2, 0.1 + 0.2, 0.4, 1.0 / 3});
  textOf({-1e300, 5e-324, 2.2250738585072014e-308, 1e22, 1e300});
}

std::string again(const std::string& frames) {
  return plainFramesText(parseFrameList(frames).numbers());
}

TEST(PlainFramesText, HasRangesAndSingleFrames) {
  EXPECT_EQ(again("1-50"), "1-50");
  EXPECT_EQ(again("7"), "7");
  EXPECT_EQ(again("1,2"), "1,2");
  EXPECT_EQ(again("1,2,3,7,9,10,11"), "1-3,7,9-11");
  EXPECT_EQ(again("1-9x2,20-40:10"), "1-9x2,20-40x10");
  EXPECT_EQ(again("10-1"), "10-1");
  EXPECT_EQ(again("10-0x5"), "10-0x5");
  EXPECT_EQ(again("-3--1,-0.5"), "-3--1,-0.5");
  EXPECT_EQ(again("5,5,5"), "5,5,5");
  EXPECT_EQ(plainFramesText({}), "");
}

TEST(PlainFramesText, LeavesTheStepsErrorsOut) {
  EXPECT_EQ(again("1-2x0.1"), "1-2x0.1");
  EXPECT_EQ(again("0-1x0.333333333333"), "0-0.999999999999x0.333333333333");
}

TEST(PlainFramesText, HasNoExponents) {
  EXPECT_EQ(again("0.0000001,1000000000000000000000"), "0.0000001,1000000000000000000000");
}

/// Any part of a job, as a text, is that part of the job.
TEST(PlainFramesText, MeansTheSameFrames) {
  for (const std::string job :
       {"1-1000", "1-100x0.1", "5-0x0.01", "1,2,3,5,8,13.5,21-34x1.5", "-7-7x0.7",
        "1000000-1000005x0.001", "0-1000x0.0041666666666666666"}) {
    const std::vector<double> frames = parseFrameList(job).numbers();
    for (const std::size_t skipped : {1u, 3u, 7u}) {
      std::vector<double> part;
      for (std::size_t i = skipped; i < frames.size(); i += i % 5 == 0 ? skipped : 1)
        part.push_back(frames[i]);
      EXPECT_EQ(parsePartOfJob(plainFramesText(part), job).numbers(), part) << job;
    }
  }
}

}  // namespace
}  // namespace vtlcmd::runner

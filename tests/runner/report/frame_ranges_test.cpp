#include "report/frame_ranges.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

/// Of frames that are called by their places.
FrameRanges rangesOf(const std::vector<std::uint64_t>& indices) {
  FrameRanges ranges;
  for (const std::uint64_t index : indices) ranges.add(index, std::to_string(index));
  return ranges;
}

TEST(FrameRanges, NeighboursAreOneRange) {
  EXPECT_EQ(rangesOf({}).text(), "");
  EXPECT_EQ(rangesOf({5}).text(), "5");
  EXPECT_EQ(rangesOf({5, 6}).text(), "5–6");
  EXPECT_EQ(rangesOf({1, 2, 3, 7, 9, 10}).text(), "1–3, 7, 9–10");
}

TEST(FrameRanges, NeighboursInTheJobMayBeFarApart) {
  FrameRanges ranges;
  ranges.add(0, "-10");
  ranges.add(1, "-7.5");
  EXPECT_EQ(ranges.text(), "-10 to -7.5");
}

TEST(FrameRanges, OfManyRangesTheFirstStand) {
  FrameRanges ranges;
  for (std::uint64_t i = 0; i < 10'000; i += 2) ranges.add(i, std::to_string(i));
  EXPECT_EQ(ranges.count(), 5000U);
  EXPECT_EQ(ranges.text(), "0, 2, 4, 6, 8, 10, 12, 14 and 4,992 more");
}

TEST(FrameRanges, ThousandsStandApart) {
  EXPECT_EQ(groupedDigits(0), "0");
  EXPECT_EQ(groupedDigits(999), "999");
  EXPECT_EQ(groupedDigits(1'000), "1,000");
  EXPECT_EQ(groupedDigits(1'234'567), "1,234,567");
  EXPECT_EQ(counted(1, "frame"), "1 frame");
  EXPECT_EQ(counted(10'000, "frame"), "10,000 frames");
}

}  // namespace
}  // namespace vtlcmd::runner

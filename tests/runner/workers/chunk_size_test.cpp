#include "workers/chunk_size.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

ChunkSize afterFramesOf(double seconds) {
  ChunkSize size(2);
  for (int i = 0; i < 100; ++i) size.addMeasurement(seconds);
  return size;
}

TEST(ChunkSize, BeginsWithOneFrame) {
  EXPECT_EQ(ChunkSize(2).next(0, 1000), 1);
  EXPECT_TRUE(ChunkSize(2).isScarce(0));
  EXPECT_FALSE(ChunkSize(2).isScarce(1));
}

TEST(ChunkSize, LongFramesGoOneByOne) {
  const ChunkSize size = afterFramesOf(1);
  EXPECT_EQ(size.next(100, 1000), 1);
  EXPECT_FALSE(size.isScarce(1));
}

TEST(ChunkSize, ShortFramesGoInGrowingChunks) {
  const ChunkSize size = afterFramesOf(0.0001);
  EXPECT_EQ(size.next(1, 100'000), 2);
  EXPECT_EQ(size.next(64, 100'000), 128);
  EXPECT_NEAR(static_cast<double>(size.next(1000, 100'000)), 500, 1);
  EXPECT_TRUE(size.isScarce(10));
  EXPECT_FALSE(size.isScarce(100));
}

TEST(ChunkSize, TheLastFramesAreShared) {
  const ChunkSize size = afterFramesOf(0.0001);
  EXPECT_EQ(size.next(1000, 100), 25);
  EXPECT_EQ(size.next(1000, 1), 1);
}

TEST(ChunkSize, ALongFrameCountsAtOnce) {
  ChunkSize size = afterFramesOf(0.0001);
  size.addMeasurement(1);
  EXPECT_EQ(size.next(1000, 100'000), 1);
}

}  // namespace
}  // namespace vtlcmd::runner

#include "farm/chunks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LeastChunkSize, GrowsWhereTheChunksAreTooMany) {
  EXPECT_EQ(leastChunkSize(1000, 1000), 1u);
  EXPECT_EQ(leastChunkSize(1001, 1000), 2u);
  EXPECT_EQ(leastChunkSize(999, 1000), 1u);
  EXPECT_EQ(leastChunkSize(1'000'000, 1), 1'000'000u);
}

TEST(ChunkSizeFor, FillsTheTime) {
  EXPECT_EQ(chunkSizeFor(60, 1, 1000), 60u);
  EXPECT_EQ(chunkSizeFor(60, 0.7, 1000), 85u);
}

TEST(ChunkSizeFor, IsOneFrameAtLeastAndAllAtMost) {
  EXPECT_EQ(chunkSizeFor(60, 3600, 1000), 1u);
  EXPECT_EQ(chunkSizeFor(60, 1e-9, 1000), 1000u);
  EXPECT_EQ(chunkSizeFor(60, 0, 1000), 1000u);
}

TEST(ChunksOf, AreAllFullButTheLast) {
  const std::vector<double> frames{1, 2, 3, 4, 5, 6, 7};
  EXPECT_THAT(chunksOf(frames, 3), ElementsAre("1-3", "4-6", "7"));
  EXPECT_THAT(chunksOf(frames, 7), ElementsAre("1-7"));
  EXPECT_THAT(chunksOf(frames, 100), ElementsAre("1-7"));
  EXPECT_THAT(chunksOf({}, 3), IsEmpty());
}

}  // namespace
}  // namespace vtlcmd::runner

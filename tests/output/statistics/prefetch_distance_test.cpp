#include "vtlcmd/output/statistics/prefetch_distance.h"

#include <gtest/gtest.h>

namespace vtlcmd::statistics {
namespace {

struct AskedProcessor {
  unsigned features;

  CpuidLeaf leaf(unsigned number) const {
    EXPECT_EQ(number, 0x8000'0001U);
    return {~0U, ~0U, features, ~0U};
  }
};

TEST(PrefetchDistance, IsNoneWhereTheProcessorHasSse4a) {
  EXPECT_EQ(prefetchDistance(AskedProcessor{0x40}), 0U);
  EXPECT_EQ(prefetchDistance(AskedProcessor{~0U}), 0U);
  EXPECT_EQ(prefetchDistance(AskedProcessor{0}), 3072U);
  EXPECT_EQ(prefetchDistance(AskedProcessor{~0x40U}), 3072U);
}

}  // namespace
}  // namespace vtlcmd::statistics

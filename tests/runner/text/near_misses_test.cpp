#include "text/near_misses.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(EditDistance, CountsSingleSlips) {
  EXPECT_EQ(editDistance("", ""), 0U);
  EXPECT_EQ(editDistance("add", "add"), 0U);
  EXPECT_EQ(editDistance("ad", "add"), 1U);
  EXPECT_EQ(editDistance("adds", "add"), 1U);
  EXPECT_EQ(editDistance("aud", "add"), 1U);
  EXPECT_EQ(editDistance("dad", "add"), 1U);
  EXPECT_EQ(editDistance("", "add"), 3U);
  EXPECT_EQ(editDistance("Add", "add"), 1U);
}

TEST(NearMisses, NearestFirstAndEqualsInGivenOrder) {
  const std::vector<std::string> known{"count", "mount", "amount", "discount"};
  EXPECT_EQ(nearMisses("cuont", known), (std::vector<std::string>{"count"}));
  EXPECT_EQ(nearMisses("ount", known), (std::vector<std::string>{"count", "mount"}));
  EXPECT_EQ(nearMisses("amounts", known), (std::vector<std::string>{"amount", "mount"}));
}

TEST(NearMisses, AtMostThree) {
  EXPECT_EQ(nearMisses("x", {"a", "b", "c", "d"}), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(NearMisses, NothingFarOff) {
  EXPECT_TRUE(nearMisses("frame", {"seconds", "mode"}).empty());
  EXPECT_TRUE(nearMisses(std::string(1000, 'a'), {std::string(1000, 'a')}).empty());
}

TEST(NearMissHint, IsAQuestion) {
  EXPECT_EQ(nearMissHint("ad", {"add", "sine"}), "; did you mean 'add'?");
  EXPECT_EQ(nearMissHint("cat", {"bat", "cut"}), "; did you mean 'bat' or 'cut'?");
  EXPECT_EQ(nearMissHint("x", {"a", "b", "c"}), "; did you mean 'a', 'b' or 'c'?");
  EXPECT_EQ(nearMissHint("nothing", {"add"}), "");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "text/text_place.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(TextPlace, CountsFromOne) {
  EXPECT_EQ(lineAndColumn("", 0), "line 1, column 1");
  EXPECT_EQ(lineAndColumn("ab\ncd", 1), "line 1, column 2");
  EXPECT_EQ(lineAndColumn("ab\ncd", 2), "line 1, column 3");
  EXPECT_EQ(lineAndColumn("ab\ncd", 3), "line 2, column 1");
  EXPECT_EQ(lineAndColumn("ab\ncd", 4), "line 2, column 2");
  EXPECT_EQ(lineAndColumn("\n\n", 2), "line 3, column 1");
  EXPECT_EQ(lineAndColumn("ab", 99), "line 1, column 3");
}

}  // namespace
}  // namespace vtlcmd::runner

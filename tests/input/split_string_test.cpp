#include "vtlcmd/input/split_string.h"

#include <gtest/gtest.h>

namespace vtlcmd {
namespace {

using Pieces = std::vector<std::string>;

TEST(SplitString, GivesOnePieceMoreThanDelimiters) {
  EXPECT_EQ(splitString("", ','), (Pieces{""}));
  EXPECT_EQ(splitString("a", ','), (Pieces{"a"}));
  EXPECT_EQ(splitString(",", ','), (Pieces{"", ""}));
  EXPECT_EQ(splitString("a,b", ','), (Pieces{"a", "b"}));
  EXPECT_EQ(splitString("a,", ','), (Pieces{"a", ""}));
  EXPECT_EQ(splitString(",a", ','), (Pieces{"", "a"}));
  EXPECT_EQ(splitString(" a , b ", ','), (Pieces{" a ", " b "}));
  EXPECT_EQ(splitString("\"a,b\"", ','), (Pieces{"\"a", "b\""}));
  EXPECT_EQ(splitString("a,b", ';'), (Pieces{"a,b"}));
  EXPECT_EQ(splitString(std::string(999, ','), ',').size(), 1000U);
}

}  // namespace
}  // namespace vtlcmd

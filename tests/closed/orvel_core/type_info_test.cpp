#include <gtest/gtest.h>
#include <string_view>

#include "vtlcmd/host/type_tags.h"

namespace Orvel::Internal {
namespace {

TEST(VoidTag, SaysX) {
  const TypeInfo& tag = TypeInfo::s_void;
  EXPECT_EQ(std::string_view(tag.name, tag.length), "X");
  EXPECT_EQ(tag.unique, 0);
  EXPECT_EQ(tag.kind, 0);
  EXPECT_EQ(tag.rank, 0U);
  EXPECT_TRUE(vtlcmd::sameType(tag, vtlcmd::makeTag("X", 0, 0)));
  EXPECT_FALSE(vtlcmd::sameType(tag, vtlcmd::makeTag("", 0, 0)));
}

}  // namespace
}  // namespace Orvel::Internal

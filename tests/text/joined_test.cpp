#include "vtlcmd/text/joined.h"

#include <gtest/gtest.h>
#include <string>

#include "support/allocation_count.h"

namespace vtlcmd {
namespace {

TEST(Joined, PutsPiecesTogetherInOneAllocation) {
  const std::string longPiece(1000, 'x');
  const std::size_t before = testing::allocationCount();
  const std::string text = joined({"a", longPiece, "", "b"});
  EXPECT_EQ(testing::allocationCount(), before + 1);
  EXPECT_EQ(text, "a" + longPiece + "b");
  EXPECT_EQ(joined({}), "");
}

}  // namespace
}  // namespace vtlcmd

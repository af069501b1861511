#include "text/size_text.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(SizeText, UnitsArePowersOf1024) {
  EXPECT_EQ(sizeFrom("1"), 1U);
  EXPECT_EQ(sizeFrom("7B"), 7U);
  EXPECT_EQ(sizeFrom("2K"), 2048U);
  EXPECT_EQ(sizeFrom("512M"), std::uint64_t{512} << 20U);
  EXPECT_EQ(sizeFrom("4GB"), std::uint64_t{4} << 30U);
  EXPECT_EQ(sizeFrom("3TiB"), std::uint64_t{3} << 40U);
  EXPECT_EQ(sizeFrom("16777215T"), std::uint64_t{16777215} << 40U);
}

TEST(SizeText, OtherTextsAreNone) {
  for (const char* text :
       {"", "0", "-1", "G", "1.5G", "4g", "4 G", "4GG", "4i", "16777216T", "18446744073709551616"})
    EXPECT_EQ(sizeFrom(text), std::nullopt) << text;
}

TEST(SizeText, WholeNumbersOfTheLargestUnit) {
  EXPECT_EQ(sizeText(0), "0 bytes");
  EXPECT_EQ(sizeText(1), "1 byte");
  EXPECT_EQ(sizeText(1025), "1025 bytes");
  EXPECT_EQ(sizeText(std::uint64_t{1536} << 20U), "1536 MiB");
  EXPECT_EQ(sizeText(std::uint64_t{4} << 30U), "4 GiB");
  EXPECT_EQ(sizeText(std::uint64_t{4096} << 40U), "4096 TiB");
}

}  // namespace
}  // namespace vtlcmd::runner

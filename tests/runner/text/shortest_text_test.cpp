#include "text/shortest_text.h"

#include <charconv>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(ShortestText, IsTheShorterOfDigitsAndExponent) {
  EXPECT_EQ(shortestText(0), "0");
  EXPECT_EQ(shortestText(-0.0), "-0");
  EXPECT_EQ(shortestText(1), "1");
  EXPECT_EQ(shortestText(-7), "-7");
  EXPECT_EQ(shortestText(0.1), "0.1");
  EXPECT_EQ(shortestText(24.5), "24.5");
  EXPECT_EQ(shortestText(10000), "10000");
  EXPECT_EQ(shortestText(99999), "99999");
  EXPECT_EQ(shortestText(99999.5), "99999.5");
  EXPECT_EQ(shortestText(100000), "1e+05");
  EXPECT_EQ(shortestText(100001), "100001");
  EXPECT_EQ(shortestText(1e22), "1e+22");
}

TEST(ShortestText, OfWholeNumbersIsThatOfDoubles) {
  for (int number = 0; number < 110'000; ++number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, static_cast<double>(number)).ptr;
    ASSERT_EQ(shortestText(number), std::string(text, end));
  }
}

}  // namespace
}  // namespace vtlcmd::runner

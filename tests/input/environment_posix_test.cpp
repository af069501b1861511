#include <gtest/gtest.h>

#include "support/floating_environment.h"
#include "vtlcmd/input/number_parsing.h"

namespace vtlcmd {
namespace {

template <typename T>
std::optional<T> read(const char* text) {
  ParseStatus status{};
  return parseNumber<T>(text, status);
}

TEST(FloatingEnvironment, FloatsAreNarrowedToNearest) {
  testing::inEachEnvironment([] {
    EXPECT_EQ(read<float>("16777217"), 16777216.0F);
    EXPECT_EQ(read<float>("16777219"), 16777220.0F);
    EXPECT_EQ(read<float>("-16777217"), -16777216.0F);
    EXPECT_EQ(read<float>("-16777218.75"), -16777218.0F);
    EXPECT_EQ(read<float>("0x1.fffffefp0"), 0x1.fffffep0F);
    EXPECT_EQ(read<float>("0x1.ffffffp0"), 2.0F);
    EXPECT_EQ(read<float>("0"), 0.0F);
  });
}

TEST(FloatingEnvironment, SubnormalNumbersAreOutOfRange) {
  testing::inEachEnvironment([] {
    ParseStatus status{};
    EXPECT_EQ(parseNumber<double>("0x1p-1074", status), std::nullopt);
    EXPECT_EQ(status, ParseStatus::ParseOutOfRange);
    EXPECT_EQ(parseNumber<double>("-0x1p-1023", status), std::nullopt);
    EXPECT_EQ(status, ParseStatus::ParseOutOfRange);
    EXPECT_EQ(read<double>("0x1p-1022"), 0x1p-1022);
    EXPECT_EQ(read<float>("0x1p-126"), 0x1p-126F);
    EXPECT_EQ(read<float>("0x1p-127"), std::nullopt);
  });
}

TEST(FloatingEnvironment, StaysAsItWas) {
  testing::inEachEnvironment([] {
    const std::uint32_t before = testing::FloatingEnvironment::settings();
    read<float>("0.1");
    read<double>("1e-310");
    EXPECT_EQ(testing::FloatingEnvironment::settings(), before);
  });
}

}  // namespace
}  // namespace vtlcmd

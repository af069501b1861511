#include <clocale>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <locale>
#include <string>

#include "support/test_host.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using testing::TestHost;

/// German: a comma in front of decimals, points between thousands.
#if defined(_WIN32)
constexpr const char* localeName = "German_Germany.1252";
#else
constexpr const char* localeName = "de_DE.UTF-8";
#endif

/// A host that set its C locale, as programs with a user interface do.
class UnderDecimalComma : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, localeName), nullptr); }
  void TearDown() override { std::setlocale(LC_ALL, "C"); }

  template <typename T>
  bool set(const char* text) {
    host_.giveText("p", text);
    return host_.setInput(Orvel::typeOf<T>(), value_, "p");
  }

  TestHost host_;
  Any value_;
};

TEST_F(UnderDecimalComma, FractionsAreReadWithTheComma) {
  EXPECT_TRUE(set<double>("1,5"));
  EXPECT_EQ(*anyCast<double>(&value_), 1.5);
  EXPECT_FALSE(set<double>("1.5"));
  EXPECT_TRUE(set<float>("15e-1"));
  EXPECT_EQ(*anyCast<float>(&value_), 1.5F);
}

TEST_F(UnderDecimalComma, VectorTextsSplitAtTheCommaAndSoHaveNoFractions) {
  EXPECT_TRUE(set<Math::float2>("1,5"));
  EXPECT_EQ(*anyCast<Math::float2>(&value_), (Math::float2{{1, 5}}));
  EXPECT_FALSE(set<Math::float2>("1.5,2"));
}

TEST_F(UnderDecimalComma, IntegersAreReadAsEver) {
  EXPECT_TRUE(set<std::int32_t>("1234"));
  EXPECT_FALSE(set<std::int32_t>("1.234"));
}

TEST_F(UnderDecimalComma, ReportsKeepThePoint) {
  EXPECT_TRUE(host_.getAny(makeAny(1.5), "p"));
  EXPECT_THAT(host_.messages(), ElementsAre("progress Output port 'p': (double) 1.5"));
}

/// The same for streams, whose named locales not every standard library has.
class GermanNumbers : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(UnderAGroupingGlobalLocale, ReportsTakeItsForm) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
  TestHost host;
  EXPECT_TRUE(host.getAny(makeAny(1.5), "p"));
  EXPECT_TRUE(host.getAny(makeAny(std::int32_t{1234567}), "q"));
  std::locale::global(before);
  EXPECT_THAT(host.messages(), ElementsAre("progress Output port 'p': (double) 1,5",
                                           "progress Output port 'q': (int) 1.234.567"));
}

}  // namespace
}  // namespace vtlcmd

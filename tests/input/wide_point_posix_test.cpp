#include <clocale>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_host.h"

namespace vtlcmd {
namespace {

/// Pashto: a point of two bytes in front of decimals.
class UnderAPointOfTwoBytes : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr); }
  void TearDown() override { std::setlocale(LC_ALL, "C"); }

  template <typename T>
  bool set(const char* text) {
    host_.giveText("p", text);
    return host_.setInput(Orvel::typeOf<T>(), value_, "p");
  }

  testing::TestHost host_;
  Any value_;
};

TEST_F(UnderAPointOfTwoBytes, FractionsAreReadWithIt) {
  ASSERT_TRUE(set<double>("1\u066B5"));
  EXPECT_EQ(*anyCast<double>(&value_), 1.5);
  EXPECT_FALSE(set<double>("1.5"));
  EXPECT_FALSE(set<double>("1\xD9"));
  ASSERT_TRUE(set<Math::float2>("1\u066B5,-2\u066B25"));
  EXPECT_EQ(*anyCast<Math::float2>(&value_), (Math::float2{{1.5F, -2.25F}}));
}

TEST_F(UnderAPointOfTwoBytes, ReportsKeepThePoint) {
  EXPECT_TRUE(host_.getAny(makeAny(1.5), "p"));
  EXPECT_THAT(host_.messages(), ::testing::ElementsAre("progress Output port 'p': (double) 1.5"));
}

}  // namespace
}  // namespace vtlcmd

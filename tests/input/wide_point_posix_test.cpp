#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/c_locale_test.h"

namespace vtlcmd {
namespace {

/// Pashto: a point of two bytes in front of decimals.
class UnderAPointOfTwoBytes : public testing::CLocaleTest {
 protected:
  UnderAPointOfTwoBytes() : CLocaleTest("ps_AF.UTF-8") {}
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

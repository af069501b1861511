#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "support/c_locale_test.h"
#include "support/scoped_locale.h"
#include "support/test_host.h"
#include "support/type_samples.h"
#include "vtlcmd/stand_in/geometry_builder.h"

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

class UnderDecimalComma : public testing::CLocaleTest {
 protected:
  UnderDecimalComma() : CLocaleTest(localeName) {}
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

/// The locale of streams is another one.
class UnderAGroupingGlobalLocale : public ::testing::Test {
 protected:
  testing::GroupingLocale locale_;
  TestHost host_;
};

TEST_F(UnderAGroupingGlobalLocale, ReportsTakeItsForm) {
  EXPECT_TRUE(host_.getAny(makeAny(1.5), "p"));
  EXPECT_TRUE(host_.getValue(Orvel::makeValue(Math::float2{{1.5F, 123456}}), "p"));
  EXPECT_TRUE(host_.getAny(makeAny(std::int32_t{1234567}), "p"));
  EXPECT_TRUE(host_.getAny(makeAny(testing::arrayOf<double>(std::vector<double>(1000, 0.5))), "p"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'p': (double) 1,5",
                          "progress Output port 'p': (Math::float2) {1,5, 123.456}",
                          "progress Output port 'p': (int) 1.234.567",
                          "progress Output port 'p': (array<double>) (1.000 double)\n"
                          "  {\n     min: 0,5\n     max: 0,5\n     avg: 0,5\n  }"));
}

TEST_F(UnderAGroupingGlobalLocale, ListsTakeItsForm) {
  const std::vector<Orvel::String> texts(1000, "a");
  host_.logger.printLimit = 1;
  EXPECT_TRUE(host_.getAny(makeAny(testing::arrayOf<Orvel::String>(texts)), "p"));
  EXPECT_THAT(host_.messages(), ElementsAre("progress Output port 'p': (array<string>) \n"
                                            "(1 out of 1.000 string)[\n\"a\" ]\n"));
}

TEST_F(UnderAGroupingGlobalLocale, ObjectReportsTakeItsForm) {
  const ObjectPtr object = Vantrel::createObject();
  Vantrel::Geometry::setComponentProperty(*object, {"points", 6}, 1000);
  EXPECT_TRUE(host_.getAny(makeAny(object), "p"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'p': (Object) {\n  points: count: 1.000\n}"));
}

TEST_F(UnderAGroupingGlobalLocale, InputMessagesTakeItsForm) {
  host_.giveText("p", "1234567");
  Any value;
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<std::int32_t>(), value, "p"));
  host_.context.frame = 1000;
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<Vantrel::Simulation::Time>(), value, "t"));
  host_.context.frameLength = -1000.5;
  EXPECT_FALSE(host_.setInput(Orvel::typeOf<Vantrel::Simulation::Time>(), value, "t"));
  EXPECT_THAT(host_.messages(), ElementsAre("verbose Set input port 'p': (int) 1.234.567",
                                            "verbose Frame: 1.000 | Time: 0s (fps=1)",
                                            "error Invalid frame length: -1.000,5"));
}

}  // namespace
}  // namespace vtlcmd

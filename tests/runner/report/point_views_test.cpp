#include "report/point_views.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string viewHtmlOf(const std::string& picture) {
  return pointViewsHtml(parseJson(picture), "<9>");
}

TEST(PointViews, ThreeSidesHaveOneScale) {
  const std::string html = viewHtmlOf(R"({"count":2,"points":[[0,0,0],[10,5,1]]})");
  EXPECT_THAT(html, HasSubstr("<b>Frame &lt;9&gt;</b> <span class='facts'>2 points</span>"));
  EXPECT_THAT(html, HasSubstr("front: x right, y up"));
  EXPECT_THAT(html, HasSubstr("d='M19 740h0M981 260h0'"));
  EXPECT_THAT(html, HasSubstr("side: z right, y up"));
  EXPECT_THAT(html, HasSubstr("d='M452 740h0M548 260h0'"));
  EXPECT_THAT(html, HasSubstr("top: x right, z down"));
  EXPECT_THAT(html, HasSubstr("d='M19 452h0M981 548h0'"));
}

TEST(PointViews, FlatPointsHaveOneSide) {
  const std::string html = viewHtmlOf(R"({"count":1,"points":[[1,2]]})");
  EXPECT_THAT(html, HasSubstr("d='M500 500h0'"));
  EXPECT_THAT(html, Not(HasSubstr("side")));
}

TEST(PointViews, SaysWhatIsNotDrawn) {
  EXPECT_THAT(viewHtmlOf(R"({"count":9000,"points":[[1,2,"nan"],[1,2,3]]})"),
              HasSubstr("2 of 9,000 points, 1 not finite</span>"));
  EXPECT_THAT(viewHtmlOf(R"({"count":1,"points":[["inf",2]]})"), Not(HasSubstr("<svg")));
}

TEST(PointViews, TheWidestRangeStaysInThePicture) {
  EXPECT_THAT(viewHtmlOf(R"({"count":2,"points":[[-1.7e308,0],[1.7e308,0]]})"),
              HasSubstr("M19 500h0M981 500h0"));
  EXPECT_THAT(viewHtmlOf(R"({"count":2,"points":[[0,0],[1.79e308,0]]})"),
              HasSubstr("M20 500h0M996 500h0"));
}

}  // namespace
}  // namespace vtlcmd::runner

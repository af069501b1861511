#include "report/histogram_plot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string plotHtmlOf(const std::string& histogram) {
  return histogramHtml(parseJson(histogram), "<9>");
}

TEST(HistogramPlot, BarsAreAsHighAsTheCounts) {
  const std::string html =
      plotHtmlOf(R"({"low":0.5,"width":0.25,"counts":[4,0,2,1],"not_finite":0})");
  EXPECT_THAT(html, HasSubstr("<b>Frame &lt;9&gt;</b> <span class='facts'>7 elements</span>"));
  EXPECT_THAT(html, HasSubstr("<path class='bars' d='M10 500v-500h230v500zM510 500v-250h230v250z"
                              "M760 500v-125h230v125z'/>"));
  EXPECT_THAT(html, HasSubstr("<span style='left:50%'>1</span>"));
}

TEST(HistogramPlot, WholeNumbersStandBelowTheirBars) {
  EXPECT_THAT(plotHtmlOf(R"({"low":0,"width":1,"counts":[1,2],"not_finite":0})"),
              HasSubstr("<div class='x'><span style='left:25%'>0</span>"
                        "<span style='left:75%'>1</span></div>"));
}

TEST(HistogramPlot, CountsHaveNoFractions) {
  EXPECT_THAT(plotHtmlOf(R"({"low":0,"width":0.5,"counts":[1,1],"not_finite":0})"),
              HasSubstr("<div class='y'><span style='top:100%'>0</span>"
                        "<span style='top:0%'>1</span></div>"));
}

TEST(HistogramPlot, OneNumberNeedsNoBars) {
  const std::string html =
      plotHtmlOf(R"({"low":18446744073709551615,"width":0,"counts":[3],"not_finite":1000})");
  EXPECT_THAT(html, HasSubstr("3 elements, all 18446744073709551615, 1,000 more not finite<"));
  EXPECT_THAT(html, Not(HasSubstr("<svg")));
}

}  // namespace
}  // namespace vtlcmd::runner

#include "report/line_plot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <regex>

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The drawing instructions of each series.
std::vector<std::string> pathsIn(const std::string& html) {
  static const std::regex path("<path class='s[0-9]' d='([^']*)'");
  std::vector<std::string> paths;
  for (std::sregex_iterator found(html.begin(), html.end(), path), end; found != end; ++found)
    paths.push_back((*found)[1]);
  return paths;
}

TEST(LinePlot, ValuesSpanThePicture) {
  const std::string html = linePlotHtml({"t", {1, 2, 3}, {{"a", {0, 5, 10}}}});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0L160 60L320 0"));
  EXPECT_THAT(html, HasSubstr("<span>10</span><span>0</span>"));
  EXPECT_THAT(html, HasSubstr("<span>1</span><span>3</span>"));
}

TEST(LinePlot, FramesLieByTheirNumber) {
  const std::string html = linePlotHtml({"t", {3, 1, 1.5}, {{"a", {0, 1, 1}}}});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M320 120h0L0 0L80 0"));
}

TEST(LinePlot, SeriesShareTheScale) {
  const std::string html = linePlotHtml({"t", {1, 2}, {{"low", {0, 0}}, {"high", {8, 4}}}});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0L320 120", "M0 0h0L320 60"));
  EXPECT_THAT(html, HasSubstr("<span class='key s1'>high</span>"));
}

TEST(LinePlot, WhatIsNotFiniteLeavesAGap) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const std::string html =
      linePlotHtml({"t", {0, 1, 2, 3, 4}, {{"a", {0, infinity, 1, std::nullopt, 0}}}});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0M160 0h0M320 120h0"));
}

TEST(LinePlot, AConstantLiesInTheMiddle) {
  EXPECT_THAT(pathsIn(linePlotHtml({"t", {1, 2}, {{"a", {7, 7}}}})),
              testing::ElementsAre("M0 60h0L320 60"));
}

TEST(LinePlot, TheWidestRangeStaysFinite) {
  constexpr double most = std::numeric_limits<double>::max();
  EXPECT_THAT(pathsIn(linePlotHtml({"t", {1, 2}, {{"a", {-most, most}}}})),
              testing::ElementsAre("M0 120h0L320 0"));
}

TEST(LinePlot, WithoutAFiniteValueThereIsNoPicture) {
  const std::string html = linePlotHtml(
      {"t", {1, 2}, {{"a", {std::nullopt, std::numeric_limits<double>::quiet_NaN()}}}});
  EXPECT_THAT(html, HasSubstr("no finite value"));
  EXPECT_THAT(html, Not(HasSubstr("<svg")));
}

TEST(LinePlot, LongSeriesKeepTheirPeaks) {
  LinePlot plot{"t", {}, {{"a", {}}}};
  for (int i = 0; i < 20'000; ++i) {
    plot.frames.push_back(i);
    plot.series[0].values.emplace_back(i == 7'777 ? 100 : i == 7'778 ? -100 : 0);
  }
  const std::string path = pathsIn(linePlotHtml(plot)).at(0);
  EXPECT_LE(std::count(path.begin(), path.end(), 'L'), 1000);
  EXPECT_THAT(path, HasSubstr("L124.44 0L124.45 120"));
}

TEST(LinePlot, NamesAreTexts) {
  const std::string html = linePlotHtml({"<t>", {1, 2}, {{"a&b", {1, 2}}}});
  EXPECT_THAT(html, HasSubstr("<figcaption>&lt;t&gt;"));
  EXPECT_THAT(html, HasSubstr("<title>a&amp;b</title>"));
}

}  // namespace
}  // namespace vtlcmd::runner

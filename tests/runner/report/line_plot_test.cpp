#include "report/line_plot.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string_view>

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;

/// The drawing instructions of each series.
std::vector<std::string> pathsIn(const std::string& html) {
  constexpr std::string_view start = "<path class='s";
  constexpr std::string_view instructions = "' d='";
  std::vector<std::string> paths;
  for (std::size_t found = html.find(start); found != std::string::npos;
       found = html.find(start, found + 1)) {
    const std::size_t first = html.find(instructions, found) + instructions.size();
    paths.push_back(html.substr(first, html.find('\'', first) - first));
  }
  return paths;
}

using Values = std::vector<std::optional<double>>;

/// A series with the values over the frames; each frame is a stretch.
PlotSeries series(const std::string& name, const std::vector<double>& frames,
                  const Values& values) {
  PlotSeries series{name, {}};
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (values[i]) series.add({i, frames[i], *values[i]});
  }
  return series;
}

TEST(LinePlot, ValuesSpanThePicture) {
  const std::string html = linePlotHtml({"t", {series("a", {1, 2, 3}, {0, 5, 10})}}, {1, 3});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0L160 60L320 0"));
  EXPECT_THAT(html, HasSubstr("<span>10</span><span>0</span>"));
  EXPECT_THAT(html, HasSubstr("<span>1</span><span>3</span>"));
}

TEST(LinePlot, FramesLieByTheirNumber) {
  const std::string html = linePlotHtml({"t", {series("a", {3, 1, 1.5}, {0, 1, 1})}}, {1, 3});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M320 120h0L0 0L80 0"));
}

TEST(LinePlot, SeriesShareTheScale) {
  const std::string html =
      linePlotHtml({"t", {series("low", {1, 2}, {0, 0}), series("high", {1, 2}, {8, 4})}}, {1, 2});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0L320 120", "M0 0h0L320 60"));
  EXPECT_THAT(html, HasSubstr("<span class='key s1'>high</span>"));
}

TEST(LinePlot, FramesWithoutAValueLeaveAGap) {
  const std::string html = linePlotHtml(
      {"t", {series("a", {0, 1, 2, 3, 4}, {0, std::nullopt, 1, std::nullopt, 0})}}, {0, 4});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 120h0M160 0h0M320 120h0"));
}

TEST(LinePlot, AConstantLiesInTheMiddle) {
  EXPECT_THAT(pathsIn(linePlotHtml({"t", {series("a", {1, 2}, {7, 7})}}, {1, 2})),
              testing::ElementsAre("M0 60h0L320 60"));
}

TEST(LinePlot, TheWidestRangeStaysFinite) {
  constexpr double most = std::numeric_limits<double>::max();
  EXPECT_THAT(pathsIn(linePlotHtml({"t", {series("a", {1, 2}, {-most, most})}}, {1, 2})),
              testing::ElementsAre("M0 120h0L320 0"));
}

TEST(PlotSeries, AStretchKeepsItsExtremesInOrder) {
  PlotSeries series;
  double frame = 0;
  const auto valuesAfter = [&](std::initializer_list<double> values) {
    for (const double value : values) series.add({0, frame++, value});
    std::vector<double> kept;
    for (const PlotPoint& point : series.points) kept.push_back(point.value);
    return kept;
  };
  EXPECT_EQ(valuesAfter({5}), (std::vector<double>{5}));
  EXPECT_EQ(valuesAfter({3}), (std::vector<double>{5, 3}));
  EXPECT_EQ(valuesAfter({4, 3, 5}), (std::vector<double>{5, 3}));
  EXPECT_EQ(valuesAfter({9}), (std::vector<double>{3, 9}));
  EXPECT_EQ(valuesAfter({1}), (std::vector<double>{9, 1}));
  EXPECT_EQ(valuesAfter({0}), (std::vector<double>{9, 0}));
}

TEST(PlotSeries, LongSeriesKeepTheirPeaks) {
  PlotSeries series{"a", {}};
  for (std::uint64_t i = 0; i < 20'000; ++i)
    series.add({i / 40, static_cast<double>(i), i == 7'777 ? 100.0 : i == 7'778 ? -100.0 : 0.0});
  const std::string path = pathsIn(linePlotHtml({"t", {series}}, {0, 19'999})).at(0);
  EXPECT_LE(std::count(path.begin(), path.end(), 'L'), 1000);
  EXPECT_THAT(path, HasSubstr("L124.44 0L124.45 120"));
}

TEST(LinePlot, NamesAreTexts) {
  const std::string html = linePlotHtml({"<t>", {series("a&b", {1, 2}, {1, 2})}}, {1, 2});
  EXPECT_THAT(html, HasSubstr("<figcaption>&lt;t&gt;"));
  EXPECT_THAT(html, HasSubstr("<title>a&amp;b</title>"));
}

}  // namespace
}  // namespace vtlcmd::runner

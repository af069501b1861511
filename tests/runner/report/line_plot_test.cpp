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
using testing::Not;

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
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 500L500 250L1000 0"));
}

TEST(LinePlot, AxesHaveMarksAtRoundNumbers) {
  const std::string html = linePlotHtml({"t", {series("a", {1, 21}, {0.3, 3.9})}}, {1, 21});
  EXPECT_THAT(html, HasSubstr("<div class='y'><span style='top:100%'>0</span>"
                              "<span style='top:75%'>1</span><span style='top:50%'>2</span>"
                              "<span style='top:25%'>3</span><span style='top:0%'>4</span></div>"));
  EXPECT_THAT(html, HasSubstr("<div class='x'><span style='left:0%'>1</span>"
                              "<span style='left:20%'>5</span><span style='left:45%'>10</span>"
                              "<span style='left:70%'>15</span>"
                              "<span style='left:100%'>21</span></div>"));
}

TEST(LinePlot, FramesLieByTheirNumber) {
  const std::string html = linePlotHtml({"t", {series("a", {3, 1, 1.5}, {0, 1, 1})}}, {1, 3});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M1000 500L0 0L250 0"));
}

TEST(LinePlot, SeriesShareTheScale) {
  const std::string html =
      linePlotHtml({"t", {series("low", {1, 2}, {0, 0}), series("high", {1, 2}, {8, 4})}}, {1, 2});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 500L1000 500", "M0 0L1000 250"));
  EXPECT_THAT(html, HasSubstr("<span class='key s1'>high</span>"));
}

TEST(LinePlot, FramesWithoutAValueLeaveAGap) {
  const std::string html =
      linePlotHtml({"t", {series("a", {0, 1, 2, 3, 4}, {0, 1, std::nullopt, 1, 0})}}, {0, 4});
  EXPECT_THAT(pathsIn(html), testing::ElementsAre("M0 500L250 0M750 0L1000 500"));
}

TEST(LinePlot, AValueBetweenGapsIsADot) {
  const std::string html = linePlotHtml(
      {"t", {series("a", {0, 1, 2, 3, 4}, {0, std::nullopt, 1, std::nullopt, 0})}}, {0, 4});
  EXPECT_THAT(html, HasSubstr("<path class='s0 dot' d='M0 500h0M500 0h0M1000 500h0'>"));
}

TEST(LinePlot, StatisticsHaveABandWithoutTheGaps) {
  const std::vector<double> frames{0, 1, 2, 3, 4};
  const LinePlot plot{"t",
                      {series("min", frames, {0, 0, std::nullopt, 0, 1}),
                       series("max", frames, {4, 2, std::nullopt, 2, 4}),
                       series("avg", frames, {1, 1, std::nullopt, 1, 1})}};
  const std::string html = linePlotHtml(plot, {0, 4});
  EXPECT_THAT(html, HasSubstr("<path class='band' d='M0 500L250 500L250 250L0 0Z"
                              "M750 500L1000 375L1000 0L750 250Z'/>"));
  EXPECT_THAT(html, HasSubstr("<path class='avg' d='M0 375L250 375M750 375L1000 375'>"));
  EXPECT_THAT(linePlotHtml({"t", {series("min", {1, 2}, {0, 1})}}, {1, 2}),
              Not(HasSubstr("class='band'")));
}

TEST(LinePlot, TheWidestRangeStaysFinite) {
  constexpr double most = std::numeric_limits<double>::max();
  EXPECT_THAT(pathsIn(linePlotHtml({"t", {series("a", {1, 2}, {-most, most})}}, {1, 2})),
              testing::ElementsAre("M0 500L1000 0"));
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
  EXPECT_THAT(path, HasSubstr("L388.87 0L388.92 500"));
}

TEST(LinePlot, NamesAreTexts) {
  const std::string html = linePlotHtml({"<t>", {series("a&b", {1, 2}, {1, 2})}}, {1, 2});
  EXPECT_THAT(html, HasSubstr("<figcaption><b>&lt;t&gt;</b>"));
  EXPECT_THAT(html, HasSubstr("<title>a&amp;b</title>"));
}

}  // namespace
}  // namespace vtlcmd::runner

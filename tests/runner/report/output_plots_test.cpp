#include "report/output_plots.h"

#include <gtest/gtest.h>
#include <sstream>

namespace vtlcmd::runner {
namespace {

/// Of frames 1, 2 and so on, from each frame's exact value; an empty text for a frame that doesn't
/// report it.
OutputPlots plotsOf(const std::vector<std::string>& values) {
  OutputPlots plots(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!values[i].empty()) plots.add(i, static_cast<double>(i + 1), parseJson(values[i]));
  }
  return plots;
}

/// "title name frame:value frame:value", a line a series.
std::string textOf(const OutputPlots& plots) {
  std::ostringstream text;
  for (const LinePlot& plot : plots.changing()) {
    for (const PlotSeries& series : plot.series) {
      text << plot.title << '/' << series.name;
      for (const PlotPoint& point : series.points) text << ' ' << point.frame << ':' << point.value;
      text << '\n';
    }
  }
  return text.str();
}

/// "title name=number name=number", a line a thing.
std::string constantsOf(const OutputPlots& plots) {
  std::string text;
  for (const OutputPlots::Constants& row : plots.constants()) {
    text += row.title;
    for (const auto& [name, number] : row.numbers) text += " " + name + "=" + number;
    text += '\n';
  }
  return text;
}

TEST(OutputPlots, NumbersAndVectors) {
  EXPECT_EQ(textOf(plotsOf({"10", "20.5"})), "/value 1:10 2:20.5\n");
  EXPECT_EQ(textOf(plotsOf({"[1,2,3,4]", "[5,6,7,8]"})),
            "/x 1:1 2:5\n/y 1:2 2:6\n/z 1:3 2:7\n/w 1:4 2:8\n");
}

TEST(OutputPlots, StatisticsAndSizesOfArrays) {
  EXPECT_EQ(textOf(plotsOf({R"({"sizes":[3],"min":1,"max":3,"average":2})",
                            R"({"sizes":[4],"min":0,"max":4,"average":3})"})),
            "/size 1:3 2:4\n/min 1:1 2:0\n/max 1:3 2:4\n/avg 1:2 2:3\n");
  EXPECT_EQ(textOf(plotsOf({R"({"sizes":[3],"min":[1,2],"max":[3,4],"average":[5,6]})",
                            R"({"sizes":[3],"min":[2,3],"max":[4,5],"average":[6,7]})"})),
            "x/min 1:1 2:2\nx/max 1:3 2:4\nx/avg 1:5 2:6\n"
            "y/min 1:2 2:3\ny/max 1:4 2:5\ny/avg 1:6 2:7\n");
  EXPECT_EQ(textOf(plotsOf({R"({"sizes":[2,null]})", R"({"sizes":[2,5]})", R"({"sizes":[3,6]})"})),
            "/size 1 1:2 2:2 3:3\n/size 2 2:5 3:6\n");
}

TEST(OutputPlots, PropertiesOfObjectsKeepTheirNames) {
  EXPECT_EQ(
      textOf(plotsOf({R"({"points":{"count":5}})", R"({"faces":{"count":2},"points":{"count":6}})",
                      R"({"faces":{"count":3},"points":{"count":6}})"})),
      "points/count 1:5 2:6 3:6\nfaces/count 2:2 3:3\n");
  // A property may be called like a statistic.
  EXPECT_EQ(textOf(plotsOf(
                {R"({"a":{"min":1},"min":{"min":100}})", R"({"a":{"min":2},"min":{"min":101}})"})),
            "a/min 1:1 2:2\nmin/min 1:100 2:101\n");
}

TEST(OutputPlots, FramesWithoutANumberAreLeftOut) {
  EXPECT_EQ(textOf(plotsOf({"1", "\"nan\"", "", "4"})), "/value 1:1 4:4\n");
}

TEST(OutputPlots, WhatDoesNotChangeIsExactAndInNoPlot) {
  const OutputPlots plots =
      plotsOf({R"({"sizes":[3],"min":0.1,"max":18446744073709551615,"average":2})", "",
               R"({"sizes":[3],"min":0.1,"max":18446744073709551615,"average":3})"});
  EXPECT_EQ(constantsOf(plots), " size=3 min=0.1 max=18446744073709551615\n");
  EXPECT_EQ(textOf(plots), "/avg 1:2 3:3\n");
  EXPECT_EQ(constantsOf(plotsOf({"\"nan\"", "\"nan\""})), " value=nan\n");
  EXPECT_EQ(constantsOf(plotsOf({"[1,2]", "[1,3]"})), " x=1\n");
  EXPECT_EQ(
      constantsOf(plotsOf({R"({"p":{"sizes":[2],"min":[1,2],"max":[1,2],"average":[1,2]}})"})),
      "p size=2\np x min=1 max=1 avg=1\np y min=2 max=2 avg=2\n");
}

TEST(OutputPlots, TruthsAndNothingHaveNone) {
  for (const char* value : {"true", "null", "{}", R"({"sizes":[]})"}) {
    EXPECT_EQ(textOf(plotsOf({value, value})), "") << value;
    EXPECT_EQ(constantsOf(plotsOf({value, value})), "") << value;
  }
}

}  // namespace
}  // namespace vtlcmd::runner

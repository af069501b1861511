#include "report/output_plots.h"

#include <gtest/gtest.h>
#include <sstream>

namespace vtlcmd::runner {
namespace {

/// The plots of frames 1, 2 and so on, from each frame's exact value of one output; an empty text
/// for a frame that doesn't report it.
std::vector<LinePlot> plotsOf(const std::vector<std::string>& values) {
  OutputPlots plots(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    nlohmann::ordered_json outputs = nlohmann::ordered_json::object();
    if (!values[i].empty()) outputs["o"] = {{"value", nlohmann::ordered_json::parse(values[i])}};
    plots.add(i, static_cast<double>(i + 1), outputs);
  }
  const auto found = plots.outputs().find("o");
  return found == plots.outputs().end() ? std::vector<LinePlot>() : found->second;
}

/// "title name frame:value frame:value", a line a series.
std::string textOf(const std::vector<LinePlot>& plots) {
  std::ostringstream text;
  for (const LinePlot& plot : plots) {
    for (const PlotSeries& series : plot.series) {
      text << plot.title << '/' << series.name;
      for (const PlotPoint& point : series.points) text << ' ' << point.frame << ':' << point.value;
      text << '\n';
    }
  }
  return text.str();
}

TEST(OutputPlots, NumbersAndVectors) {
  EXPECT_EQ(textOf(plotsOf({"10", "20.5"})), "/value 1:10 2:20.5\n");
  EXPECT_EQ(textOf(plotsOf({"[1,2,3,4]", "[5,6,7,8]"})),
            "/x 1:1 2:5\n/y 1:2 2:6\n/z 1:3 2:7\n/w 1:4 2:8\n");
}

TEST(OutputPlots, StatisticsOfArrays) {
  EXPECT_EQ(textOf(plotsOf({R"({"sizes":[3],"min":1,"max":3,"average":2})"})),
            "/min 1:1\n/max 1:3\n/avg 1:2\n");
  EXPECT_EQ(textOf(plotsOf({R"({"sizes":[3],"min":[1,2],"max":[3,4],"average":[5,6]})"})),
            "x/min 1:1\nx/max 1:3\nx/avg 1:5\ny/min 1:2\ny/max 1:4\ny/avg 1:6\n");
}

TEST(OutputPlots, PropertiesOfObjectsKeepTheirNames) {
  EXPECT_EQ(textOf(plotsOf(
                {R"({"points":{"count":5}})", R"({"faces":{"count":2},"points":{"count":6}})"})),
            "points/count 1:5 2:6\nfaces/count 2:2\n");
  // A property may be called like a statistic.
  EXPECT_EQ(textOf(plotsOf({R"({"a":{"sizes":[2],"min":1,"max":1,"average":1},)"
                            R"("min":{"sizes":[2],"min":100,"max":100,"average":100}})"})),
            "a/min 1:1\na/max 1:1\na/avg 1:1\nmin/min 1:100\nmin/max 1:100\nmin/avg 1:100\n");
}

TEST(OutputPlots, FramesWithoutANumberAreLeftOut) {
  EXPECT_EQ(textOf(plotsOf({"1", "\"nan\"", "", "4"})), "/value 1:1 4:4\n");
}

TEST(OutputPlots, TextsTruthsAndNothingHaveNone) {
  for (const char* value : {"\"1\"", "true", "null", "{}", R"({"sizes":[1]})"})
    EXPECT_EQ(textOf(plotsOf({value, value})), "") << value;
}

}  // namespace
}  // namespace vtlcmd::runner

#include "report/output_plots.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

ReportEntry entry(const std::string& frame, std::map<std::string, OutputReport> outputs) {
  ReportEntry entry;
  entry.frameText = frame;
  entry.outputs = std::move(outputs);
  return entry;
}

OutputReport number(const std::string& text) { return {"double", text, true}; }

TEST(OutputPlots, OneSeriesOverTheFrames) {
  ReportGroup group;
  group.entries.push_back(entry("1", {{"a", number("10")}, {"b", {"string", "\"1\"", true}}}));
  group.entries.push_back(entry("1.5", {{"a", number("20")}}));
  const auto outputs = plotOutputs(group);
  ASSERT_EQ(outputs.size(), 1U);
  const LinePlot& plot = outputs.at("a").at(0);
  EXPECT_EQ(plot.frames, (std::vector<double>{1, 1.5}));
  ASSERT_EQ(plot.series.size(), 1U);
  EXPECT_EQ(plot.series[0].name, "value");
  EXPECT_EQ(plot.series[0].values, (std::vector<std::optional<double>>{10, 20}));
}

TEST(OutputPlots, FramesWithoutANumberAreLeftOpen) {
  ReportGroup group;
  group.entries.push_back(entry("1", {{"a", {"double", "", false}}}));
  group.entries.push_back(entry("2", {{"a", number("20")}}));
  group.entries.push_back(entry("3", {}));
  EXPECT_EQ(plotOutputs(group).at("a").at(0).series.at(0).values,
            (std::vector<std::optional<double>>{std::nullopt, 20, std::nullopt}));
}

TEST(OutputPlots, GroupsThatComeAndGoKeepTheirNames) {
  const auto object = [](const std::string& text) { return OutputReport{"Object", text, true}; };
  ReportGroup group;
  group.entries.push_back(entry("1", {{"o", object("{\n  points: count: 5\n}")}}));
  group.entries.push_back(
      entry("2", {{"o", object("{\n  faces: count: 2\n  points: count: 6\n}")}}));
  const std::vector<LinePlot> plots = plotOutputs(group).at("o");
  ASSERT_EQ(plots.size(), 2U);
  EXPECT_EQ(plots[0].title, "points");
  EXPECT_EQ(plots[0].series.at(0).values, (std::vector<std::optional<double>>{5, 6}));
  EXPECT_EQ(plots[1].title, "faces");
  EXPECT_EQ(plots[1].series.at(0).values, (std::vector<std::optional<double>>{std::nullopt, 2}));
}

TEST(OutputPlots, OneFrameHasNone) {
  ReportGroup group;
  group.entries.push_back(entry("1", {{"a", number("10")}}));
  EXPECT_TRUE(plotOutputs(group).empty());
}

}  // namespace
}  // namespace vtlcmd::runner

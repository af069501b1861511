#include "report/duration_timeline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A timeline of frames 1, 2 and so on, from the "times" of each.
std::string timelineHtmlOf(const std::vector<std::string>& times, std::uint64_t failed = 0) {
  DurationTimeline timeline(times.size(), "home");
  FrameRange frames;
  for (std::size_t i = 0; i < times.size(); ++i) {
    const Json content{{"succeeded", i + 1 != failed}};
    const auto json = parseJson(times[i]);
    const auto number = static_cast<double>(i + 1);
    frames.add(number);
    timeline.add({i, std::to_string(i + 1), number, content, json});
  }
  std::ostringstream page;
  timeline.write(page, frames);
  return page.str();
}

TEST(DurationTimeline, TellsTheWholeAndTheLongest) {
  const std::string html = timelineHtmlOf({R"({"seconds":0.5})", R"({"seconds":2})"});
  EXPECT_THAT(html, HasSubstr("2 frames in 2.5 s, 1.25 s a frame; the longest, 2, took 2 s"));
  EXPECT_THAT(html, HasSubstr("d='M0 100v-25h400v25zM500 100v-100h400v100z'"));
  EXPECT_THAT(html, Not(HasSubstr("class='lane'")));
}

TEST(DurationTimeline, FailedFramesHaveAColourOfTheirOwn) {
  EXPECT_THAT(timelineHtmlOf({R"({"seconds":1})", R"({"seconds":1})"}, 2),
              HasSubstr("<path class='bars bad' d='M500 100v-100h400v100z'/>"));
}

TEST(DurationTimeline, EachWorkerHasALane) {
  const std::string html =
      timelineHtmlOf({R"({"seconds":1,"worker":1})", R"({"seconds":3,"worker":2})",
                      R"({"seconds":1,"worker":1,"host":"<far>"})"},
                     2);
  EXPECT_THAT(html, HasSubstr("<b>home · worker 1</b> <span class='facts'>1 frame, 1 s, 1 s a "
                              "frame</span>"));
  EXPECT_THAT(html, HasSubstr("<b>home · worker 2</b> <span class='facts'>1 frame, 3 s, 3 s a "
                              "frame, <span class='failed'>1 failed</span></span>"));
  EXPECT_THAT(html, HasSubstr("<b>&lt;far&gt; · worker 1</b>"));
}

TEST(DurationTimeline, OfTooManyWorkersTheHostsAreDrawn) {
  std::vector<std::string> times;
  for (int i = 0; i < 40; ++i)
    times.push_back(R"({"seconds":1,"worker":)" + std::to_string(i) + R"(,"host":")" +
                    (i < 20 ? "a" : "b") + "\"}");
  const std::string html = timelineHtmlOf(times);
  EXPECT_THAT(html, HasSubstr("<b>a</b> <span class='facts'>20 frames"));
  EXPECT_THAT(html, Not(HasSubstr("worker")));
}

TEST(DurationTimeline, LongRunsKeepTheLongestOfEachStretch) {
  std::vector<std::string> times(10'000, R"({"seconds":0.25})");
  times[7'777] = R"({"seconds":1})";
  const std::string html = timelineHtmlOf(times);
  EXPECT_LE(std::count(html.begin(), html.end(), 'z'), 410);
  EXPECT_THAT(html, HasSubstr("v-100h"));
}

TEST(DurationTimeline, WithoutTimesThereIsNone) { EXPECT_EQ(timelineHtmlOf({"null", "{}"}), ""); }

TEST(DurationText, SuitsTheLength) {
  EXPECT_EQ(durationText(0), "0 µs");
  EXPECT_EQ(durationText(0.0000123), "12.3 µs");
  EXPECT_EQ(durationText(0.85), "850 ms");
  EXPECT_EQ(durationText(4.5), "4.5 s");
  EXPECT_EQ(durationText(59.99), "60 s");
  EXPECT_EQ(durationText(192), "3 min 12 s");
  EXPECT_EQ(durationText(7500), "2 h 5 min");
  EXPECT_EQ(durationText(36'000'000), "10,000 h 0 min");
}

}  // namespace
}  // namespace vtlcmd::runner

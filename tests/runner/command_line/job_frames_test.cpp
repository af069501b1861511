#include "command_line/job_frames.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "command_line/usage_error.h"

namespace vtlcmd::runner {
namespace {

/// Place in the job and number.
using PlacedFrames = std::vector<std::pair<std::size_t, double>>;

PlacedFrames placedFrames(const FrameList& list) {
  PlacedFrames frames;
  for (std::size_t i = 0; i < list.size(); ++i) frames.emplace_back(list.placeInWhole(i), list[i]);
  return frames;
}

TEST(JobFrames, HaveThePlacesOfTheJob) {
  const FrameList part = parsePartOfJob("4-6", "1-10");
  EXPECT_EQ(placedFrames(part), (PlacedFrames{{3, 4}, {4, 5}, {5, 6}}));
  EXPECT_EQ(part.wholeSize(), 10U);
  EXPECT_EQ(placedFrames(parsePartOfJob("1-10", "10-1")), [] {
    PlacedFrames frames;
    for (std::size_t i = 0; i < 10; ++i) frames.emplace_back(9 - i, static_cast<double>(i + 1));
    return frames;
  }());
  EXPECT_EQ(placedFrames(parsePartOfJob("20,5,7,6", "5-7,20-22x2,1")),
            (PlacedFrames{{3, 20}, {0, 5}, {2, 7}, {1, 6}}));
  EXPECT_EQ(placedFrames(parsePartOfJob("7,20", "5-7,20-22x2,1")), (PlacedFrames{{2, 7}, {3, 20}}));
}

TEST(JobFrames, HaveTheNumbersOfTheJobAlsoWhereStepsAreInexact) {
  const FrameList part = parsePartOfJob("0.3-0.9x0.1", "0-10x0.1");
  ASSERT_EQ(part.size(), 7U);
  for (std::size_t i = 0; i < part.size(); ++i) {
    EXPECT_EQ(part[i], static_cast<double>(i + 3) * 0.1);
    EXPECT_EQ(part.placeInWhole(i), i + 3);
  }
}

struct RefusedPart {
  const char* frames;
  const char* jobFrames;
  const char* message;
};

class RefusedJobFrames : public testing::TestWithParam<RefusedPart> {};

TEST_P(RefusedJobFrames, SayWhy) {
  try {
    parsePartOfJob(GetParam().frames, GetParam().jobFrames);
    FAIL() << "accepted " << GetParam().frames;
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedJobFrames,
    testing::Values(RefusedPart{"9-11", "1-10", "--job-frames: '1-10' lacks frame 11 of '9-11'"},
                    RefusedPart{"0", "1-10", "--job-frames: '1-10' lacks frame 0 of '0'"},
                    RefusedPart{"2.5", "1-10", "--job-frames: '1-10' lacks frame 2.5 of '2.5'"},
                    RefusedPart{"2", "1-10x2", "--job-frames: '1-10x2' lacks frame 2 of '2'"},
                    RefusedPart{"1", "1-10,7", "--job-frames: '1-10,7' has frame 7 twice"},
                    RefusedPart{"1", "",
                                "the frames '' make no sense: a number is missing at the end"}));

}  // namespace
}  // namespace vtlcmd::runner

#include "execution/frame_list_text.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using Frames = std::vector<double>;

Frames framesIn(const std::string& text) { return parseFrameList(text).numbers(); }

TEST(FrameListText, Lists) {
  EXPECT_EQ(framesIn("1"), (Frames{1}));
  EXPECT_EQ(framesIn("1,5,9"), (Frames{1, 5, 9}));
  EXPECT_EQ(framesIn("3,1,3"), (Frames{3, 1, 3}));
}

TEST(FrameListText, Ranges) {
  EXPECT_EQ(framesIn("1-4"), (Frames{1, 2, 3, 4}));
  EXPECT_EQ(framesIn("4-1"), (Frames{4, 3, 2, 1}));
  EXPECT_EQ(framesIn("1-10x4"), (Frames{1, 5, 9}));
  EXPECT_EQ(framesIn("1-10:4"), (Frames{1, 5, 9}));
  EXPECT_EQ(framesIn("5-5"), (Frames{5}));
  EXPECT_EQ(framesIn("1-2x5,7"), (Frames{1, 7}));
}

TEST(FrameListText, FractionsAndNegativeNumbers) {
  EXPECT_EQ(framesIn("1.5"), (Frames{1.5}));
  EXPECT_EQ(framesIn("1-2x0.25"), (Frames{1, 1.25, 1.5, 1.75, 2}));
  EXPECT_EQ(framesIn("-2--1"), (Frames{-2, -1}));
  EXPECT_EQ(framesIn("-1-1"), (Frames{-1, 0, 1}));
}

TEST(FrameListText, InexactStepsReachTheEnd) {
  EXPECT_EQ(parseFrameList("0-0.3x0.1").size(), 4U);
  EXPECT_EQ(parseFrameList("0.3-0.9x0.1").size(), 7U);
  EXPECT_EQ(parseFrameList("0-1x0.1").size(), 11U);
}

struct Refusal {
  const char* text;
  const char* message;
};

class RefusedFrameList : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedFrameList, SayWhy) {
  try {
    parseFrameList(GetParam().text);
    FAIL() << "accepted " << GetParam().text;
  } catch (const FrameListError& error) {
    EXPECT_STREQ(error.what(), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedFrameList,
    testing::Values(
        Refusal{"", "the frames '' make no sense: a number is missing at the end"},
        Refusal{"1,", "the frames '1,' make no sense: a number is missing at the end"},
        Refusal{"1-", "the frames '1-' make no sense: a number is missing at the end"},
        Refusal{"1-5x", "the frames '1-5x' make no sense: a number is missing at the end"},
        Refusal{"a", "the frames 'a' make no sense: expected a number at 'a'"},
        Refusal{" 1", "the frames ' 1' make no sense: expected a number at ' 1'"},
        Refusal{"1 2", "the frames '1 2' make no sense: expected ',' before ' 2'"},
        Refusal{"0x10", "the frames '0x10' make no sense: expected ',' before 'x10'"},
        Refusal{"inf", "the frames 'inf' make no sense: expected a number at 'inf'"},
        Refusal{"1-nan", "the frames '1-nan' make no sense: expected a number at 'nan'"},
        Refusal{"1e3", "the frames '1e3' make no sense: expected ',' before 'e3'"},
        Refusal{"1-5x0", "the frames '1-5x0' make no sense: the step must be above zero"},
        Refusal{"1-5x-1", "the frames '1-5x-1' make no sense: the step must be above zero"},
        Refusal{"1-1000001", "the frames '1-1000001' make no sense: more than 1000000 frames"},
        Refusal{"0-1x0.000000000000000000000000000001",
                "the frames '0-1x0.000000000000000000000000000001' make no sense: more than "
                "1000000 frames"}));

TEST(FrameListText, AMillionIsTheMost) {
  EXPECT_EQ(parseFrameList("1-999999").size(), 999999U);
  EXPECT_EQ(parseFrameList("1-1000000").size(), 1000000U);
  EXPECT_EQ(parseFrameList("1-1000000")[999999], 1000000);
}

}  // namespace
}  // namespace vtlcmd::runner

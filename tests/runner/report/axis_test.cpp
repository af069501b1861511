#include "report/axis.h"

#include <gtest/gtest.h>
#include <limits>

namespace vtlcmd::runner {
namespace {

std::string labelsOf(const Axis& axis) {
  std::string labels;
  for (const Axis::Mark& mark : axis.marks()) labels += (labels.empty() ? "" : " ") + mark.label;
  return labels;
}

TEST(Axis, RoundedEndsAtRoundNumbers) {
  const Axis axis = Axis::rounded(-0.93, 1.2, 4);
  EXPECT_EQ(labelsOf(axis), "-1 0 1 2");
  EXPECT_EQ(axis.low(), -1);
  EXPECT_EQ(axis.high(), 2);
  EXPECT_EQ(labelsOf(Axis::rounded(0, 0.3, 4)), "0 0.1 0.2 0.3");
  EXPECT_EQ(labelsOf(Axis::rounded(1, 100, 4)), "0 50 100");
  EXPECT_EQ(labelsOf(Axis::rounded(3e-7, 4e-7, 4)), "3e-07 3.5e-07 4e-07");
}

TEST(Axis, LabelsOfNeighboursDiffer) {
  EXPECT_EQ(labelsOf(Axis::rounded(1e6 + 0.1, 1e6 + 0.4, 4)),
            "1000000.1 1000000.2 1000000.3 1000000.4");
}

TEST(Axis, ExactKeepsItsEndsAndRoundNumbersBetween) {
  EXPECT_EQ(labelsOf(Axis::exact(1, 48, 6, true)), "1 10 20 30 40 48");
  EXPECT_EQ(labelsOf(Axis::exact(1, 2, 6, true)), "1 2");
  EXPECT_EQ(labelsOf(Axis::exact(0, 0.5, 6, false)), "0 0.1 0.2 0.3 0.4 0.5");
  EXPECT_EQ(labelsOf(Axis::exact(-10, 10, 4, true)), "-10 -5 0 5 10");
}

TEST(Axis, OnePlaceIsTheMiddle) {
  EXPECT_EQ(labelsOf(Axis::exact(7, 7, 6, true)), "7");
  EXPECT_EQ(Axis::exact(7, 7, 6, true).share(7), 0.5);
  EXPECT_EQ(labelsOf(Axis::rounded(7, 7, 4)), "7");
}

TEST(Axis, TheWidestAndTheNarrowestRangesHold) {
  constexpr double most = std::numeric_limits<double>::max();
  constexpr double least = std::numeric_limits<double>::denorm_min();
  for (const auto& [low, high] : {std::pair{-most, most},
                                  {0.0, least},
                                  {most / 2, most},
                                  {1e17, 1e17 + 16},
                                  {1.0, 1.0 + 1e-15}}) {
    for (const Axis& axis : {Axis::rounded(low, high, 4), Axis::exact(low, high, 6, false)}) {
      EXPECT_GE(axis.marks().size(), 2U) << low;
      EXPECT_LE(axis.marks().size(), 16U) << low;
      EXPECT_GE(axis.share(low), 0) << low;
      EXPECT_LE(axis.share(high), 1) << low;
      EXPECT_LT(axis.share(low), axis.share(high)) << low;
    }
  }
}

}  // namespace
}  // namespace vtlcmd::runner

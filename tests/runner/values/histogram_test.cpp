#include "values/histogram.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <numeric>

namespace vtlcmd::runner {
namespace {

template <typename T>
Histogram<T> histogramOf(std::initializer_list<T> numbers) {
  Histogram<T> histogram;
  for (const T number : numbers) histogram.bound(number);
  for (const T number : numbers) histogram.count(number);
  return histogram;
}

using Counts = std::vector<std::uint64_t>;

TEST(Histogram, FewWholeNumbersHaveABinEach) {
  const auto histogram = histogramOf<std::int32_t>({3, -1, 3, 1});
  EXPECT_EQ(histogram.low(), -1);
  EXPECT_EQ(histogram.width(), 1U);
  EXPECT_EQ(histogram.counts(), (Counts{1, 0, 1, 0, 2}));
}

TEST(Histogram, ManyWholeNumbersShareBinsOfWholeWidth) {
  Histogram<std::uint8_t> histogram;
  for (unsigned i = 0; i < 256; ++i) histogram.bound(static_cast<std::uint8_t>(i));
  for (unsigned i = 0; i < 256; ++i) histogram.count(static_cast<std::uint8_t>(i));
  EXPECT_EQ(histogram.width(), 8U);
  EXPECT_EQ(histogram.counts(), Counts(32, 8));
}

TEST(Histogram, TheWidestWholeNumbersFit) {
  using Limits = std::numeric_limits<std::int64_t>;
  const auto histogram = histogramOf<std::int64_t>({Limits::min(), -1, 0, Limits::max()});
  ASSERT_EQ(histogram.counts().size(), mostBins);
  EXPECT_EQ(histogram.counts().front(), 1U);
  EXPECT_EQ(histogram.counts().back(), 1U);
  const auto top = histogramOf<std::uint64_t>({UINT64_MAX, UINT64_MAX - 1});
  EXPECT_EQ(top.counts(), (Counts{1, 1}));
}

TEST(Histogram, FloatsHaveAllBinsAndTheLargestIsInTheLast) {
  const auto histogram = histogramOf<float>({0, 0.5F, 1, 0.999F});
  EXPECT_EQ(histogram.width(), 1.0 / 32);
  ASSERT_EQ(histogram.counts().size(), mostBins);
  EXPECT_EQ(histogram.counts().front(), 1U);
  EXPECT_EQ(histogram.counts()[16], 1U);
  EXPECT_EQ(histogram.counts().back(), 2U);
}

TEST(Histogram, TheWidestFloatsFit) {
  constexpr double most = std::numeric_limits<double>::max();
  const auto histogram = histogramOf<double>({-most, 0, most});
  EXPECT_TRUE(std::isfinite(histogram.width()));
  ASSERT_EQ(histogram.counts().size(), mostBins);
  EXPECT_EQ(histogram.counts()[16], 1U);
  EXPECT_EQ(histogram.counts().back(), 1U);
}

TEST(Histogram, WhatIsNotFiniteIsCountedApart) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  const auto histogram = histogramOf<double>({1, std::nan(""), inf, -inf, 2});
  EXPECT_EQ(histogram.notFinite(), 3U);
  EXPECT_EQ(std::accumulate(histogram.counts().begin(), histogram.counts().end(), 0U), 2U);
  EXPECT_TRUE(histogramOf<double>({inf}).isEmpty());
  EXPECT_TRUE(histogramOf<int>({}).isEmpty());
}

TEST(Histogram, OneNumberHasOneBin) {
  const auto histogram = histogramOf<double>({7.5, 7.5});
  EXPECT_EQ(histogram.width(), 0);
  EXPECT_EQ(histogram.counts(), (Counts{2}));
}

}  // namespace
}  // namespace vtlcmd::runner

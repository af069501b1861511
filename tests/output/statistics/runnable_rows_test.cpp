#include "vtlcmd/output/statistics/runnable_rows.h"

#include <gtest/gtest.h>

namespace vtlcmd::statistics {
namespace {

constexpr unsigned osxsave = 0x0800'0000;
constexpr unsigned avx = 0x1800'0000;
constexpr unsigned avx2 = 0x20;
constexpr unsigned avx512 = 0xc003'0020;

/// Asked what it doesn't know, it fails the test.
struct MadeUpProcessor {
  unsigned features;
  std::uint64_t saved;
  unsigned extendedFeatures;

  CpuidLeaf leaf(unsigned number) const {
    EXPECT_TRUE(number == 1 || number == 7);
    return {0, number == 7 ? extendedFeatures : 0, number == 1 ? features : 0, 0};
  }
  std::uint64_t savedRegisters() const {
    EXPECT_NE(features & osxsave, 0U);
    return saved;
  }
};

TEST(RunnableRows, AreAllWhereProcessorAndSystemHaveAll) {
  EXPECT_EQ(runnableRows(MadeUpProcessor{avx, 0xe6, avx512}), 3U);
  EXPECT_EQ(runnableRows(MadeUpProcessor{~0U, ~std::uint64_t{0}, ~0U}), 3U);
}

TEST(RunnableRows, AreTheFirstAloneWithoutWideRegisters) {
  EXPECT_EQ(runnableRows(MadeUpProcessor{0, 0, 0}), 1U);
  EXPECT_EQ(runnableRows(MadeUpProcessor{avx, 0xe6, 0}), 1U);
  EXPECT_EQ(runnableRows(MadeUpProcessor{avx & ~osxsave, 0xe6, avx512}), 1U);
  EXPECT_EQ(runnableRows(MadeUpProcessor{osxsave, 0xe6, avx512}), 1U);
  EXPECT_EQ(runnableRows(MadeUpProcessor{avx, 0xe6, avx512 & ~avx2}), 1U);
  for (const std::uint64_t saved : {0x0U, 0x1U, 0x2U, 0x4U, 0xe0U, 0xe2U, 0xe4U}) {
    EXPECT_EQ(runnableRows(MadeUpProcessor{avx, saved, avx512}), 1U) << saved;
  }
}

TEST(RunnableRows, AreTwoWhereTheWidestRegistersLackSomething) {
  for (const unsigned lacking : {0x1'0000U, 0x2'0000U, 0x4000'0000U, 0x8000'0000U}) {
    EXPECT_EQ(runnableRows(MadeUpProcessor{avx, 0xe6, avx512 & ~lacking}), 2U) << lacking;
  }
  for (const std::uint64_t saved : {0x6U, 0x26U, 0x46U, 0x86U, 0x66U, 0xa6U, 0xc6U}) {
    EXPECT_EQ(runnableRows(MadeUpProcessor{avx, saved, avx512}), 2U) << saved;
  }
}

}  // namespace
}  // namespace vtlcmd::statistics

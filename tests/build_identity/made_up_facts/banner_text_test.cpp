#include <gtest/gtest.h>
#include <string>

#include "vtlcmd/build_identity/build_identity.h"

namespace vtlcmd::build_identity {
namespace {

TEST(MadeUpFacts, EachAccessorHasItsOwn) {
  EXPECT_EQ(majorVersion(), 3);
  EXPECT_EQ(minorVersion(), 7);
  EXPECT_EQ(patchVersion(), 1);
  EXPECT_EQ(fourthVersion(), 0);
  EXPECT_EQ(buildNumber(), 4096);
  EXPECT_STREQ(buildDate(), "Thu 02/12/2026, 202602121530");
  EXPECT_STREQ(commit(), "0123456789abcdef0123456789abcdef01234567");
  EXPECT_STREQ(branch(), "release");
}

TEST(MadeUpFacts, BannerToTheByte) {
  EXPECT_EQ(versionText(), "3.7.1.0");
  EXPECT_EQ(buildBanner(),
            "Vantrel version 3.7.1.0 (Thu 02/12/2026, 202602121530, build 4096, commit 0123456, "
            "branch release)");
}

}  // namespace
}  // namespace vtlcmd::build_identity

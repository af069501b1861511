#include "vtlcmd/build_identity/build_identity.h"

#include <gtest/gtest.h>
#include <iostream>
#include <regex>
#include <string>

#include "support/process.h"

namespace vtlcmd::build_identity {
namespace {

using testing::setEnvironment;

TEST(BuildIdentity, FactsHaveTheirForms) {
  EXPECT_STREQ(productName(), "Vantrel");
  EXPECT_TRUE(std::regex_match(commit(), std::regex("[0-9a-f]{40}"))) << commit();
  EXPECT_TRUE(std::regex_match(buildDate(), std::regex("(Mon|Tue|Wed|Thu|Fri|Sat|Sun) "
                                                       "[0-9]{2}/[0-9]{2}/[0-9]{4}, [0-9]{12}")))
      << buildDate();
  EXPECT_TRUE(std::regex_match(branch(), std::regex("\\S+"))) << branch();
  EXPECT_GE(buildNumber(), 0);
}

TEST(BuildIdentity, DateAndStampAgree) {
  const std::string date = buildDate();
  EXPECT_EQ(date.substr(16, 8), date.substr(10, 4) + date.substr(4, 2) + date.substr(7, 2));
}

TEST(BuildIdentity, VersionIsTheBuilds) {
  EXPECT_EQ(versionText(), VTLCMD_PROJECT_VERSION);
  EXPECT_EQ(versionText(), std::to_string(majorVersion()) + "." + std::to_string(minorVersion()) +
                               "." + std::to_string(patchVersion()) + "." +
                               std::to_string(fourthVersion()));
}

TEST(BuildIdentity, BannerPutsTheFactsTogether) {
  EXPECT_EQ(buildBanner(), "Vantrel version " + versionText() + " (" + buildDate() + ", build " +
                               std::to_string(buildNumber()) + ", commit " +
                               std::string(commit()).substr(0, 7) + ", branch " + branch() + ")");
}

TEST(EnvFlag, GoesByTheNumberThatTheValueBeginsWith) {
  constexpr const char* name = "VTLCMD_TEST_FLAG";
  setEnvironment(name, nullptr);
  EXPECT_FALSE(envFlag(name));
  for (const char* value : {"1", "2", "-1", "1abc", " 7"}) {
    setEnvironment(name, value);
    EXPECT_TRUE(envFlag(name)) << value;
  }
  for (const char* value : {"0", "", "yes", "true", "abc1", "0x1"}) {
    setEnvironment(name, value);
    EXPECT_FALSE(envFlag(name)) << value;
  }
}

TEST(DumpVersionInfo, WritesOneLineWhenAskedTo) {
  setEnvironment("QUILLON_DUMP_VERSION_INFO", "1abc");
  ::testing::internal::CaptureStderr();
  EXPECT_TRUE(dumpVersionInfo());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "VtlCmdTranslation: " + buildBanner() + "\n");
  setEnvironment("QUILLON_DUMP_VERSION_INFO", "0");
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(dumpVersionInfo());
  setEnvironment("QUILLON_DUMP_VERSION_INFO", nullptr);
  EXPECT_FALSE(dumpVersionInfo());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(DumpVersionInfo, LineBeginsAtTheLeftEdgeWhateverWidthTheStreamHas) {
  setEnvironment("QUILLON_DUMP_VERSION_INFO", "1");
  ::testing::internal::CaptureStderr();
  std::cerr.width(150);
  EXPECT_TRUE(dumpVersionInfo());
  EXPECT_EQ(std::cerr.width(), 0);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "VtlCmdTranslation: " + buildBanner() + "\n");
  setEnvironment("QUILLON_DUMP_VERSION_INFO", nullptr);
}

TEST(VersionInfoDumped, IsSetOnceAtTheStart) {
  EXPECT_FALSE(versionInfoDumped);
  setEnvironment("QUILLON_DUMP_VERSION_INFO", "1");
  ::testing::internal::CaptureStderr();
  EXPECT_TRUE(dumpVersionInfo());
  ::testing::internal::GetCapturedStderr();
  EXPECT_FALSE(versionInfoDumped) << "of the load, not of a later call";
  setEnvironment("QUILLON_DUMP_VERSION_INFO", nullptr);
}

TEST(DumpVersionInfo, IsSilentWithoutAnErrorStream) {
  setEnvironment("QUILLON_DUMP_VERSION_INFO", "1");
  bool dumped = true;
  {
    const testing::ClosedErrorStream closed;
    dumped = dumpVersionInfo();
  }
  EXPECT_FALSE(dumped);
  EXPECT_TRUE(std::cerr.good()) << "something was written to a closed stream";
  EXPECT_TRUE(dumpVersionInfo());
  setEnvironment("QUILLON_DUMP_VERSION_INFO", nullptr);
}

}  // namespace
}  // namespace vtlcmd::build_identity

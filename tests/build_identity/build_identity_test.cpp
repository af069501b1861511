#include "build_identity/build_identity.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace vtlcmd::build_identity {
namespace {

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
  unsetenv(name);
  EXPECT_FALSE(envFlag(name));
  for (const char* value : {"1", "2", "-1", "1abc", " 7"}) {
    setenv(name, value, 1);
    EXPECT_TRUE(envFlag(name)) << value;
  }
  for (const char* value : {"0", "", "yes", "true", "abc1", "0x1"}) {
    setenv(name, value, 1);
    EXPECT_FALSE(envFlag(name)) << value;
  }
}

TEST(DumpVersionInfo, WritesOneLineWhenAskedTo) {
  setenv("QUILLON_DUMP_VERSION_INFO", "1abc", 1);
  ::testing::internal::CaptureStderr();
  EXPECT_TRUE(dumpVersionInfo());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "VtlCmdTranslation: " + buildBanner() + "\n");
  setenv("QUILLON_DUMP_VERSION_INFO", "0", 1);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(dumpVersionInfo());
  unsetenv("QUILLON_DUMP_VERSION_INFO");
  EXPECT_FALSE(dumpVersionInfo());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(DumpVersionInfo, IsSilentWithoutAnErrorStream) {
  const pid_t child = fork();
  if (child == 0) {
    setenv("QUILLON_DUMP_VERSION_INFO", "1", 1);
    close(STDERR_FILENO);
    _exit(dumpVersionInfo() ? 1 : 0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace vtlcmd::build_identity

#include <gtest/gtest.h>
#include <regex>
#include <string>

#include "support/process.h"

namespace {

using vtlcmd::testing::EndedProgram;
using vtlcmd::testing::ErrorStream;

EndedProgram loadPlugIn(const char* value, ErrorStream errors) {
  vtlcmd::testing::setEnvironment("QUILLON_DUMP_VERSION_INFO", value);
  return vtlcmd::testing::runProgram(VTLCMD_LOADER, VTLCMD_PLUG_IN, errors);
}

/// What a fresh process that loads the plug-in and ends writes to its error stream. A null value
/// leaves the variable unset.
std::string errorTextOfLoading(const char* value) {
  const EndedProgram ended = loadPlugIn(value, ErrorStream::read);
  EXPECT_EQ(ended.exitCode, 0);
  return ended.errorText;
}

TEST(Banner, IsWrittenOnceWhileLoadingWhenAskedFor) {
  const std::regex line(
      "VtlCmdTranslation: Vantrel version [0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+ "
      "\\([A-Z][a-z]{2} [0-9]{2}/[0-9]{2}/[0-9]{4}, [0-9]{12}, build [0-9]+, "
      "commit [0-9a-f]{7}, branch \\S+\\)\n");
  for (const char* value : {"1", "2", "-1", "1abc"}) {
    const std::string text = errorTextOfLoading(value);
    EXPECT_TRUE(std::regex_match(text, line)) << text;
  }
}

TEST(Banner, IsSilentOtherwise) {
  EXPECT_EQ(errorTextOfLoading(nullptr), "");
  for (const char* value : {"0", "", "yes", "true", "x1"}) {
    EXPECT_EQ(errorTextOfLoading(value), "") << value;
  }
}

TEST(Banner, LoadingGoesWellWithoutAnErrorStream) {
  const EndedProgram ended = loadPlugIn("1", ErrorStream::none);
  EXPECT_EQ(ended.exitCode, 0);
  EXPECT_EQ(ended.errorText, "");
}

}  // namespace

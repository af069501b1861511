#include "command_line/option_values.h"

#include <gtest/gtest.h>
#include <limits>

#include "command_line/usage_error.h"

namespace vtlcmd::runner {
namespace {

TEST(FramesPerSecond, TakesNormalNumbersAboveZeroAndQuotientsOfThem) {
  EXPECT_EQ(parseFramesPerSecond("23.976"), 23.976);
  EXPECT_EQ(parseFramesPerSecond("24000/1001"), 24000.0 / 1001);
  EXPECT_EQ(parseFramesPerSecond("2.2250738585072014e-308"), 0x1p-1022);
  for (const char* text :
       {"",      "nan", "24 ", "24fps", " 24",  "0",     "-0",     "-1",     "inf",    "1e-320",
        "1e999", "/",   "24/", "/2",    "24/0", "24/-1", "-24/-1", "24/nan", "24/inf", "24/1/1"})
    EXPECT_THROW(parseFramesPerSecond(text), UsageError) << text;
}

TEST(Verbosity, NamesAndNumbers) {
  EXPECT_EQ(parseVerbosity("none"), 0U);
  EXPECT_EQ(parseVerbosity("progress"), 4U);
  EXPECT_EQ(parseVerbosity("debug"), 6U);
  EXPECT_EQ(parseVerbosity("0"), 0U);
  EXPECT_EQ(parseVerbosity("6"), 6U);
  for (const char* text : {"", "7", "-1", "Error", "3.0"})
    EXPECT_THROW(parseVerbosity(text), UsageError) << text;
}

TEST(PrintLimit, IsA32BitNumber) {
  EXPECT_EQ(parsePrintLimit("0"), 0U);
  EXPECT_EQ(parsePrintLimit("4294967295"), 4294967295U);
  for (const char* text : {"", "-1", "4294967296", "ten", "1.0"})
    EXPECT_THROW(parsePrintLimit(text), UsageError) << text;
}

TEST(Path, BecomesWide) {
  EXPECT_EQ(parsePath("--scene", "/shots/b\xC3\xA4r.file"), L"/shots/b\u00e4r.file");
  EXPECT_EQ(parsePath("--scene", ""), L"");
}

TEST(Path, RefusesBytesThatAreNoText) {
  try {
    parsePath("--scene", "bad\xFF");
    FAIL();
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), "--scene: the path isn't valid text in the file system's code page");
  }
}

}  // namespace
}  // namespace vtlcmd::runner

#include "saving/frame_file_name.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace vtlcmd::runner {
namespace {

std::string nameAt(const char* text, double frame) { return FrameFileName(text).at(frame); }

std::string nameRefusal(const char* text) {
  try {
    const FrameFileName name(text);
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
  return "accepted";
}

TEST(FrameFileName, HasTheFrameWhereItsPlaceIs) {
  EXPECT_EQ(nameAt("a.npy", 7), "a.npy");
  EXPECT_EQ(nameAt("a.{frame}.npy", 7), "a.7.npy");
  EXPECT_EQ(nameAt("{frame}/{frame:03}", 7), "7/007");
  EXPECT_EQ(nameAt("a.{frame}.npy", 10.5), "a.10.5.npy");
  EXPECT_EQ(nameAt("{}{name}", 7), "{}{name}");
}

TEST(FrameFileName, PadsWholeFrames) {
  EXPECT_EQ(nameAt("{frame:04}", 0), "0000");
  EXPECT_EQ(nameAt("{frame:04}", -7), "-007");
  EXPECT_EQ(nameAt("{frame:04}", 12345), "12345");
  EXPECT_EQ(nameAt("{frame:01}", 1e20), "100000000000000000000");
  EXPECT_EQ(FrameFileName("{frame:099}").at(1e300).size(), 301U);
}

TEST(FrameFileName, TellsWhatItWants) {
  EXPECT_FALSE(FrameFileName("a").hasFrame());
  EXPECT_TRUE(FrameFileName("{frame}").hasFrame());
  EXPECT_FALSE(FrameFileName("{frame}").wantsWholeFrames());
  EXPECT_TRUE(FrameFileName("{frame}{frame:02}").wantsWholeFrames());
}

TEST(FrameFileName, RefusesOtherForms) {
  for (const char* form : {"{frame:4}", "{frame:0}", "{frame:00}", "{frame:0x}", "{frame:0100}",
                           "{frame:-04}", "{frame04}", "{frames}"}) {
    EXPECT_EQ(nameRefusal(form),
              "'" + std::string(form) + "' is no form of the frame; {frame} and {frame:04} are");
  }
  EXPECT_EQ(nameRefusal("a{frame:04.npy"), "'{frame:04.npy' has no '}'");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "text/control_characters.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using namespace std::string_view_literals;

TEST(ControlCharacters, TextStaysAsItIs) {
  for (const char* text : {"", "plain", "größe → 🎬", "two\nlines\tand a tab", "\u00a0", "\\x1b"})
    EXPECT_EQ(withoutControls(text), text);
}

TEST(ControlCharacters, ControlsAreSpelled) {
  EXPECT_EQ(withoutControls("\x1b[2J"), "\\x1b[2J");
  EXPECT_EQ(withoutControls("a\0b"sv), "a\\x00b");
  EXPECT_EQ(withoutControls("\r\a\x7f"), "\\x0d\\x07\\x7f");
}

TEST(ControlCharacters, ControlsOfTwoBytesToo) {
  EXPECT_EQ(withoutControls("\u009b2J"), "\\xc2\\x9b2J");
  EXPECT_EQ(withoutControls("\u0080"), "\\xc2\\x80");
}

TEST(ControlCharacters, BytesThatAreNoText) {
  EXPECT_EQ(withoutControls("\x9b"
                            "2J"),
            "\\x9b2J");
  EXPECT_EQ(withoutControls("\xc3"), "\\xc3");
}

TEST(ControlCharacters, KeepsWhatItIsTold) {
  EXPECT_EQ(withoutControls("a\n\tb", ""), "a\\x0a\\x09b");
}

}  // namespace
}  // namespace vtlcmd::runner

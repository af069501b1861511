#include "text/utf8.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(Utf8, EveryLengthComesBack) {
  for (const char32_t character : {U'\0', U'a', U'\x7f', U'\x80', U'\u07ff', U'\u0800', U'\ud7ff',
                                   U'\ue000', U'\uffff', U'\U00010000', U'\U0010ffff'}) {
    std::string text;
    appendCharacter(text, character);
    std::string_view rest = text;
    EXPECT_EQ(takeCharacter(rest), character);
    EXPECT_TRUE(rest.empty());
  }
}

TEST(Utf8, WhatIsNoCharacterIsAQuestionMark) {
  for (const unsigned number : {0xd800U, 0xdfffU, 0x110000U, 0xffffffffU}) {
    std::string text;
    appendCharacter(text, number);
    EXPECT_EQ(text, "?");
  }
}

TEST(Utf8, OtherBytesAreRefusedAndStay) {
  for (const std::string_view bytes :
       {"\x80", "\xff", "\xc3", "\xc3(", "\xc0\x80", "\xe0\x80\x80", "\xed\xa0\x80",
        "\xf4\x90\x80\x80", "\xf0\x9d\x84", "\xf8\x88\x80\x80\x80"}) {
    std::string_view rest = bytes;
    EXPECT_EQ(takeCharacter(rest), std::nullopt);
    EXPECT_EQ(rest, bytes);
  }
}

}  // namespace
}  // namespace vtlcmd::runner

#include "text/json_text.h"

#include <gtest/gtest.h>
#include <string>

#include "text/json.h"

namespace vtlcmd::runner {
namespace {

TEST(JsonText, ControlCharactersAreEscaped) {
  EXPECT_EQ(jsonText("a\x1b\x7f\xc2\x80\xc2\x9f"), R"("a\u001b\u007f\u0080\u009f")");
  EXPECT_EQ(jsonText(Json{{"\x7f", 1}}, 2), "{\n  \"\\u007f\": 1\n}");
}

TEST(PlainText, IsATextItselfAndTheJsonOfAnythingElse) {
  EXPECT_EQ(plainText("-inf \""), "-inf \"");
  EXPECT_EQ(plainText(0.1), "0.1");
  EXPECT_EQ(plainText(Json{1, "a"}), R"([1,"a"])");
  EXPECT_EQ(plainText(nullptr), "null");
}

TEST(JsonText, OtherCharactersStay) {
  const std::string text = "\xc2\xa0\xc3\x9f\xe2\x82\xac\xf0\x9f\x98\x80";
  EXPECT_EQ(jsonText(text), '"' + text + '"');
}

TEST(JsonText, EveryControlCharacterReadsBack) {
  for (char32_t c = 1; c < 0x100; ++c) {
    std::string text;
    if (c < 0x80) {
      text = static_cast<char>(c);
    } else {
      text = {static_cast<char>(0xC0U | c >> 6U), static_cast<char>(0x80U | (c & 0x3FU))};
    }
    EXPECT_EQ(parseJson(jsonText(text)), text) << static_cast<unsigned>(c);
  }
}

TEST(JsonText, WhatIsNoTextIsReplaced) {
  EXPECT_EQ(jsonText("\xff\xc2"), "\"\xef\xbf\xbd\xef\xbf\xbd\"");
}

}  // namespace
}  // namespace vtlcmd::runner

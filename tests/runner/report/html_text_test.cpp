#include "report/html_text.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(HtmlText, CharactersWithAMeaningBecomeReferences) {
  EXPECT_EQ(htmlText("<b a=\"1\">&amp;'</b>"), "&lt;b a=&quot;1&quot;&gt;&amp;amp;&#39;&lt;/b&gt;");
}

TEST(HtmlText, CharactersStay) { EXPECT_EQ(htmlText("bär \t\n€ 𝄞"), "bär \t\n€ 𝄞"); }

TEST(HtmlText, WhatIsNoCharacterOfAPageIsReplaced) {
  EXPECT_EQ(htmlText(std::string_view("a\0b\x1b\x7f\r", 6)), "a\uFFFDb\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(htmlText("\xff\xc3"), "\uFFFD\uFFFD");
  EXPECT_EQ(htmlText("\xed\xa0\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(htmlText("\xc2\x80"), "\uFFFD");
}

}  // namespace
}  // namespace vtlcmd::runner

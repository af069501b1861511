#include "text/shell_quoting.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(ShellQuoting, PlainWordsStayAsTheyAre) {
  for (const char* word :
       {"run", "examples/scatter.json", "size=1,2.5,3", "--frames=1-48:2", "@%+_"})
    EXPECT_EQ(shellQuoted(word), word);
}

TEST(ShellQuoting, WhatAShellWouldReadIsQuoted) {
  EXPECT_EQ(shellQuoted(""), "''");
  for (const char* word : {"a b", "$HOME", "a;b", "a*", "~", "#", "a\nb", "\"", "\\", "a&b", "ä"})
    EXPECT_EQ(shellQuoted(word), "'" + std::string(word) + "'");
}

TEST(ShellQuoting, AQuoteEndsTheQuotes) {
  EXPECT_EQ(shellQuoted("it's"), R"('it'\''s')");
  EXPECT_EQ(shellQuoted("'"), R"(''\''')");
}

TEST(ShellQuoting, WordsHaveBlanksBetweenThem) {
  EXPECT_EQ(shellQuotedWords({"sbatch", "two words", "a"}), "sbatch 'two words' a");
  EXPECT_EQ(shellQuotedWords({}), "");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "farm/shell_words.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(ShellWord, StaysPlainWhereItCan) {
  EXPECT_EQ(shellWord("/farm/a-b_c.json"), "/farm/a-b_c.json");
  EXPECT_EQ(shellWord("--set=offset=10,0,-5"), "--set=offset=10,0,-5");
}

TEST(ShellWord, QuotesWhatAShellWouldRead) {
  EXPECT_EQ(shellWord(""), "''");
  EXPECT_EQ(shellWord("two words"), "'two words'");
  EXPECT_EQ(shellWord("$HOME;`ls`*~"), "'$HOME;`ls`*~'");
  EXPECT_EQ(shellWord("it's"), "'it'\\''s'");
  EXPECT_EQ(shellWord("line\nend"), "'line\nend'");
  EXPECT_EQ(shellWord("bär"), "'bär'");
}

TEST(ShellWords, HaveBlanksBetweenThem) {
  EXPECT_EQ(shellWords({"sbatch", "two words", "a"}), "sbatch 'two words' a");
  EXPECT_EQ(shellWords({}), "");
}

}  // namespace
}  // namespace vtlcmd::runner

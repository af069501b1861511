#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/stand_in/make_string.h"

namespace Orvel {
namespace {

const StringView withNul{"a\0b", 3};

/// An empty string is two zero words, so it owns nothing.
bool ownsNothing(const String& text) {
  const char zeros[sizeof(String)] = {};
  return std::memcmp(static_cast<const void*>(&text), zeros, sizeof zeros) == 0;
}

std::string bytesOf(const String& text) {
  const StringView view = text;
  return {view.data, view.size};
}

TEST(String, EmptyOnesOwnNothingAndAreTerminated) {
  for (const String& empty : {String(), String(""), String(static_cast<const char*>(nullptr)),
                              makeString({nullptr, 0}), makeString({"abc", 0})}) {
    EXPECT_TRUE(ownsNothing(empty));
    EXPECT_STREQ(empty.c_str(), "");
  }
}

TEST(String, CopiesATerminatedTextUpToItsEnd) {
  char source[] = "abc\0def";
  const String text(source);
  source[0] = 'x';
  EXPECT_EQ(bytesOf(text), "abc");
  EXPECT_EQ(text.c_str()[3], '\0');
}

TEST(String, CopiesAViewByLength) {
  const String text = makeString(withNul);
  EXPECT_EQ(bytesOf(text), std::string("a\0b", 3));
  EXPECT_EQ(text.c_str()[3], '\0');
}

TEST(String, CopiesHaveTheirOwnText) {
  const String text = makeString(withNul);
  const String copy = text;
  EXPECT_EQ(bytesOf(copy), bytesOf(text));
  EXPECT_NE(copy.c_str(), text.c_str());
}

TEST(String, MovedFromOwnsNothing) {
  String text("abc");
  const char* characters = text.c_str();
  String moved = std::move(text);
  EXPECT_EQ(moved.c_str(), characters);
  EXPECT_TRUE(ownsNothing(text));  // NOLINT(bugprone-use-after-move): empty by contract

  String assigned("old");
  assigned = std::move(moved);
  EXPECT_EQ(assigned.c_str(), characters);
  EXPECT_TRUE(ownsNothing(moved));  // NOLINT(bugprone-use-after-move): empty by contract
}

TEST(String, AssignsFromEverySource) {
  String text("old");
  text = makeString(withNul);
  EXPECT_EQ(bytesOf(text), std::string("a\0b", 3));
  const String other("other");
  text = other;
  EXPECT_EQ(bytesOf(text), "other");
  text = "terminated";
  EXPECT_EQ(bytesOf(text), "terminated");
  text = static_cast<const char*>(nullptr);
  EXPECT_TRUE(ownsNothing(text));
}

TEST(String, AssignedToItselfStays) {
  String text("abcdef");
  String& self = text;
  text = self;
  EXPECT_EQ(bytesOf(text), "abcdef");
  text = std::move(self);
  EXPECT_EQ(bytesOf(text), "abcdef");
  text = text.c_str() + 2;
  EXPECT_EQ(bytesOf(text), "cdef");
}

TEST(String, EqualityComparesWholeTexts) {
  EXPECT_TRUE(String("abc") == String("abc"));
  EXPECT_FALSE(String("abc") == String("abd"));
  EXPECT_FALSE(String("abc") == String("ab"));
  EXPECT_TRUE(String("abc") == "abc");
  EXPECT_FALSE(String("abc") == "abcd");
  EXPECT_FALSE(makeString(withNul) == "a");
  EXPECT_FALSE(makeString(withNul) == String("a"));
  EXPECT_TRUE(makeString(withNul) == makeString(withNul));
  EXPECT_TRUE(String() == "");
  EXPECT_TRUE(String() == static_cast<const char*>(nullptr));
}

TEST(String, ComparesByUnsignedBytesTheShorterFirst) {
  const String ascending[] = {"",     "B",    "a",   makeString(withNul), "ab", "abc", "b",
                              "\x7f", "\x80", "\xff"};
  const int count = std::size(ascending);
  for (int i = 0; i < count; ++i) {
    for (int j = 0; j < count; ++j) {
      const std::int32_t order = ascending[i].compare(ascending[j]);
      EXPECT_EQ(order < 0, i < j) << i << " " << j;
      EXPECT_EQ(order > 0, i > j) << i << " " << j;
    }
  }
}

TEST(String, Concatenates) {
  EXPECT_EQ(bytesOf(String("ab") + "cd"), "abcd");
  EXPECT_EQ(bytesOf(String("ab") + static_cast<const char*>(nullptr)), "ab");
  EXPECT_EQ(bytesOf(makeString(withNul) + String("c")), std::string("a\0bc", 4));
  EXPECT_TRUE(ownsNothing(String() + ""));
  EXPECT_TRUE(ownsNothing(String() + String()));
}

}  // namespace
}  // namespace Orvel

#include "vtlcmd/host/type_tags.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace vtlcmd {
namespace {

using namespace std::string_literals;
using Orvel::Internal::TypeInfo;

/// The tag orders before no tag that it equals, and exactly one way round otherwise.
void expectBefore(const TypeInfo& a, const TypeInfo& b) {
  const TagOrder before;
  EXPECT_TRUE(before(&a, &b));
  EXPECT_FALSE(before(&b, &a));
  EXPECT_FALSE(sameType(a, b));
}

TEST(SameType, ComparesContentNotAddress) {
  const std::string first = "Ufloat3@Math@Vantrel@@";
  const std::string second = first;
  const TypeInfo a = makeTag(first, 0, 1);
  const TypeInfo b = makeTag(second, 0, 1);
  ASSERT_NE(a.name, b.name);
  EXPECT_TRUE(sameType(a, b));
  EXPECT_FALSE(TagOrder{}(&a, &b));
  EXPECT_FALSE(TagOrder{}(&b, &a));
}

TEST(SameType, TellsKindRankLengthAndSpellingApart) {
  const TypeInfo tag = makeTag("H", 0, 0);
  EXPECT_FALSE(sameType(tag, makeTag("H", 2, 0)));
  EXPECT_FALSE(sameType(tag, makeTag("H", 0, 1)));
  EXPECT_FALSE(sameType(tag, makeTag("HH", 0, 0)));
  EXPECT_FALSE(sameType(tag, makeTag("I", 0, 0)));
}

TEST(SameType, SpellingsAreReadByLength) {
  using namespace std::string_view_literals;
  const std::string copy = "a\0b"s;
  EXPECT_TRUE(sameType(makeTag("a\0b"sv, 0, 0), makeTag(copy, 0, 0)));
  EXPECT_FALSE(sameType(makeTag("a\0b"sv, 0, 0), makeTag("a\0c"sv, 0, 0)));
  EXPECT_FALSE(sameType(makeTag("a\0"sv, 0, 0), makeTag("a"sv, 0, 0)));
  const TypeInfo unterminated = makeTag(std::string_view("Hx", 1), 0, 0);
  EXPECT_TRUE(sameType(unterminated, makeTag("H"sv, 0, 0)));
}

TEST(SameType, EqualNamePointersDecideBeforeTheLength) {
  TypeInfo a = makeTag("Hx", 0, 0);
  TypeInfo b = a;
  b.length = 1;
  EXPECT_TRUE(sameType(a, b));
}

TEST(SameType, EmptySpellingsAreEqual) {
  const std::string first;
  const std::string second;
  EXPECT_TRUE(sameType(makeTag(first, 0, 0), makeTag(second, 0, 0)));
}

TEST(SameType, UniqueTagsEqualThemselvesAlone) {
  TypeInfo a = makeTag("H", 0, 0);
  TypeInfo b = a;
  a.unique = 1;
  EXPECT_TRUE(sameType(a, b)) << "one unique tag alone goes by content";
  EXPECT_TRUE(sameType(b, a));
  b.unique = 1;
  EXPECT_FALSE(sameType(a, b));
  EXPECT_TRUE(sameType(a, a));
  b.rank = 3;
  EXPECT_FALSE(sameType(a, b));
}

TEST(TagOrder, RankGoesFirstThenKindThenSpelling) {
  expectBefore(makeTag("Z", 2, 0), makeTag("A", 0, 1));
  expectBefore(makeTag("Z", 0, 1), makeTag("A", 2, 1));
  expectBefore(makeTag("A", 0, 1), makeTag("B", 0, 1));
  expectBefore(makeTag("A", 0, 1), makeTag("AA", 0, 1));
  expectBefore(makeTag("AZ", 0, 1), makeTag("B", 0, 1));
}

TEST(TagOrder, SpellingsAreReadByLength) {
  using namespace std::string_view_literals;
  expectBefore(makeTag("a\0b"sv, 0, 0), makeTag("a\0c"sv, 0, 0));
  expectBefore(makeTag("a"sv, 0, 0), makeTag("a\0"sv, 0, 0));
  expectBefore(makeTag(std::string_view("Hx", 1), 0, 0), makeTag("Ha"sv, 0, 0));
}

TEST(TagOrder, BytesAreSigned) { expectBefore(makeTag("\x80", 0, 0), makeTag("A", 0, 0)); }

TEST(TagOrder, RanksAndKindsAreUnsigned) {
  expectBefore(makeTag("A", 0, 1), makeTag("A", 0, 0x80000000));
  expectBefore(makeTag("A", 1, 0), makeTag("A", 0x80, 0));
}

TEST(TagOrder, EqualNamePointersEndTheComparison) {
  TypeInfo a = makeTag("Hx", 0, 0);
  TypeInfo b = a;
  a.length = 1;
  EXPECT_FALSE(TagOrder{}(&a, &b));
  EXPECT_FALSE(TagOrder{}(&b, &a));
}

TEST(TagOrder, UniqueFlagPlaysNoPart) {
  TypeInfo a = makeTag("H", 0, 0);
  TypeInfo b = makeTag("H", 0, 0);
  a.unique = b.unique = 1;
  EXPECT_FALSE(TagOrder{}(&a, &b));
  EXPECT_FALSE(TagOrder{}(&b, &a));
}

}  // namespace
}  // namespace vtlcmd

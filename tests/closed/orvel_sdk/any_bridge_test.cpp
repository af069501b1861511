#include "orvel_sdk/any_bridge.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <vector>

#include "closed/support/expect_error.h"
#include "closed/support/stored_samples.h"
#include "closed/support/type_text.h"
#include "orvel_sdk/value_factory.h"

namespace Orvel {
namespace {

using testing::expectError;
using testing::same;
using testing::sample;
using vtlcmd::Any;

template <typename T>
class BridgedType : public ::testing::Test {};
TYPED_TEST_SUITE(BridgedType, testing::StoredTestTypes);

TYPED_TEST(BridgedType, GoesThroughAnAnyAndBackAtEveryDepth) {
  testing::atEveryDepth<TypeParam>([]<typename Stored>(const Stored& source) {
    const Any any = toAny(makeValue(source));
    const auto& row = vtlcmd::valueType<TypeParam>();
    EXPECT_TRUE(vtlcmd::sameType(
        any.type(),
        vtlcmd::makeTag(row.tagSpelling, row.tagKind, vtlcmd::type_lists::Nesting<Stored>::rank)));
    if constexpr (vtlcmd::Storable<Stored>) {
      ASSERT_NE(vtlcmd::anyCast<Stored>(&any), nullptr);
      EXPECT_TRUE(same(*vtlcmd::anyCast<Stored>(&any), source));
    }
    const auto* held = static_cast<const Stored*>(vtlcmd::any_operations::address(any));
    EXPECT_TRUE(same(*held, source));
    const Value back = fromAny(typeOf<Stored>(), any);
    EXPECT_TRUE(same(valueAs<Stored>(back), source));
  });
}

TYPED_TEST(BridgedType, SharesArraysBothWays) {
  const auto check = [](const auto& array) {
    {
      const Any any = toAny(makeValue(array));
      const Any copy = any;
      const Value back = fromAny(typeOf<std::remove_cvref_t<decltype(array)>>(), copy);
      EXPECT_TRUE(same(valueAs<std::remove_cvref_t<decltype(array)>>(back), array));
    }
    EXPECT_EQ(useCount(array), 1U);
  };
  check(testing::sampleArray<TypeParam, 1>());
  check(testing::sampleArray<TypeParam, 3>());
  check(testing::sampleArray<TypeParam, 5>());
}

TYPED_TEST(BridgedType, RefusesAnAnyOfAnotherRankOrType) {
  const std::string name = vtlcmd::valueType<TypeParam>().name;
  const std::string text = "The Any holds no value of type '" + name + "'.";
  const auto refuses = [&](const Any& any) {
    expectError<std::invalid_argument>([&] { fromAny(typeOf<TypeParam>(), any); }, text.c_str());
  };
  refuses(Any());
  refuses(toAny(makeValue(testing::sampleArray<TypeParam, 1>())));
  refuses(toAny(makeValue(testing::sampleArray<TypeParam, 4>())));
  refuses(toAny(makeZero(makeStructType(String(name.c_str()), {}))));
  vtlcmd::forEachRow(storedTypes, [&](const auto& row) {
    using Other = typename std::remove_cvref_t<decltype(row)>::Type;
    if constexpr (!std::is_same_v<Other, TypeParam>) refuses(toAny(makeValue(sample<Other>(0))));
  });
}

TEST(UntabledAny, CopiesMovesAndEndsItsValue) {
  const auto array = testing::sampleArray<std::int32_t, 4>();
  {
    Any any = toAny(makeValue(array));
    EXPECT_EQ(useCount(array), 2U);
    Any copy = any;
    EXPECT_EQ(copy.manager, any.manager);
    Any moved = std::move(copy);
    EXPECT_FALSE(copy.holdsValue());  // NOLINT(bugprone-use-after-move): empty by contract
    Any other = vtlcmd::makeAny(1.5);
    swap(moved, other);
    EXPECT_TRUE(vtlcmd::sameType(other.type(), vtlcmd::makeTag("H", 0, 4)));
    any = Any();
    EXPECT_EQ(useCount(array), 2U);
    other = Any();
    EXPECT_EQ(useCount(array), 1U);
  }
  EXPECT_EQ(useCount(array), 1U);
}

TEST(UntabledAny, CastAnswersItsOwnTagOnly) {
  const Any any = toAny(makeValue(sample<std::int16_t>(0)));
  const auto cast = [&](const Internal::TypeInfo& tag) {
    return vtlcmd::any_operations::cast(any, tag);
  };
  EXPECT_EQ(cast(vtlcmd::makeTag("F", 0, 0)), vtlcmd::any_operations::address(any));
  EXPECT_EQ(cast(vtlcmd::makeTag("F", 0, 1)), nullptr);
  EXPECT_EQ(cast(vtlcmd::makeTag("H", 0, 0)), nullptr);
  EXPECT_EQ(vtlcmd::anyCast<std::int32_t>(&any), nullptr);
}

std::string_view spellingOf(const Any& any) { return {any.type().name, any.type().length}; }

TEST(UntabledAny, StructsAreSpelledFromTheInsideOut) {
  EXPECT_EQ(spellingOf(toAny(makeZero(makeStructType(String("Row"), {})))), "URow@@");
  EXPECT_EQ(spellingOf(toAny(makeZero(makeStructType(String("Own::Table::Row"), {})))),
            "URow@Table@Own@@");
  const Any rows = toAny(makeZero(makeArrayType(makeStructType(String("Own::Row"), {}))));
  EXPECT_EQ(spellingOf(rows), "URow@Own@@");
  EXPECT_EQ(rows.type().rank, 1U);
}

TEST(UntabledAny, StructGoesBackToItsOwnTypeOnly) {
  const MemberSpec members[] = {{"text", typeOf<String>()}};
  const Type type = makeStructType(String("Own::Row"), members);
  const Any any = toAny(makeStruct(type, std::vector{makeValue(String("abc"))}));
  EXPECT_TRUE(StructValue(fromAny(type, any))["text"].getString() == "abc");
  expectError<std::invalid_argument>([&] { fromAny(makeStructType(String("Own::Row"), {}), any); },
                                     "The Any holds no value of type 'Own::Row'.");
}

constexpr auto foreignShort = vtlcmd::makeTag("F", 0, 0);

TEST(UntabledAny, TypeOfCppIsReadFromAnotherModulesManagerToo) {
  const Any any = vtlcmd::makeTaggedAny<foreignShort>(std::int16_t{-5});
  EXPECT_EQ(valueAs<std::int16_t>(fromAny(typeOf<std::int16_t>(), any)), -5);
}

constexpr auto foreignRow = vtlcmd::makeTag("URow@Own@@", 0, 0);

TEST(UntabledAny, StructOfAnotherModuleIsRefused) {
  const Any any = vtlcmd::makeTaggedAny<foreignRow>(7);
  EXPECT_THROW(fromAny(makeStructType(String("Own::Row"), {}), any), std::invalid_argument);
}

TEST(UntabledAny, TagsStayWhereTheyAre) {
  const Internal::TypeInfo* tag = &toAny(makeValue(testing::sampleArray<float, 5>())).type();
  std::vector<std::jthread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([tag] {
      for (int i = 0; i < 200; ++i) {
        const Any any = toAny(makeZero(typeOf<vtlcmd::StoredArray<float, 5>>()));
        EXPECT_EQ(&any.type(), tag);
      }
    });
  }
}

}  // namespace
}  // namespace Orvel

#include "vtlcmd/stand_in/any_bridge.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <vector>

#include "closed/support/expect_error.h"
#include "closed/support/stored_samples.h"
#include "closed/support/type_text.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace Orvel {
namespace {

using testing::expectError;
using testing::same;
using testing::sample;
using vtlcmd::Any;

TEST(AnyBridge, LeadsThroughAnAnyAndBackWithoutACopy) {
  testing::forEachStoredType([]<typename Stored>(const Stored& source) {
    using Nesting = vtlcmd::type_lists::Nesting<Stored>;
    const auto& row = vtlcmd::valueType<typename Nesting::Element>();
    const Any any = toAny(makeValue(source));
    EXPECT_TRUE(
        vtlcmd::sameType(any.type(), vtlcmd::makeTag(row.tagSpelling, row.tagKind, Nesting::rank)));
    if constexpr (vtlcmd::Storable<Stored>) {
      const void* held = vtlcmd::anyCast<Stored>(&any);
      EXPECT_EQ(held, vtlcmd::any_operations::address(any));
      EXPECT_NE(held, nullptr);
    }
    const Any copy = any;
    EXPECT_TRUE(same(*static_cast<const Stored*>(vtlcmd::any_operations::address(copy)), source));
    const Value back = fromAny(typeOf<Stored>(), copy);
    EXPECT_TRUE(same(valueAs<Stored>(back), source));
  });
}

TEST(AnyBridge, TagsSayElementAndRankAtEveryDepth) {
  vtlcmd::forEachRow(storedTypes, [](const auto& row) {
    Type type = typeNamed(String(row.name));
    for (std::uint32_t depth = 0; depth <= testing::deepest; ++depth) {
      const Any any = toAny(makeZero(type));
      const auto tag = vtlcmd::makeTag(row.tagSpelling, row.tagKind, depth);
      EXPECT_TRUE(vtlcmd::sameType(any.type(), tag)) << row.name << " " << depth;
      EXPECT_NE(vtlcmd::any_operations::address(any), nullptr);
      EXPECT_EQ(vtlcmd::any_operations::cast(any, tag), vtlcmd::any_operations::address(any));
      type = makeArrayType(type);
    }
  });
}

TEST(AnyBridge, KeepsNoUseOfWhatWentThrough) {
  const auto goThrough = [](const auto& array) {
    using Stored = std::remove_cvref_t<decltype(array)>;
    fromAny(typeOf<Stored>(), toAny(makeValue(array)));
    EXPECT_EQ(useCount(array), 1U);
  };
  goThrough(vtlcmd::ObjectPtr(Vantrel::createObject()));
  goThrough(testing::sampleArray<float, 1>());
  goThrough(testing::sampleArray<std::int16_t, 2>());
  goThrough(testing::sampleArray<float, 5>());
}

TEST(AnyBridge, GivesBackTheExactTypeAlone) {
  std::vector<Value> values;
  testing::forEachStoredElement([&]<typename T>() {
    values.push_back(makeValue(sample<T>(0)));
    values.push_back(makeZero(typeOf<vtlcmd::StoredArray<T, 1>>()));
    values.push_back(makeZero(typeOf<vtlcmd::StoredArray<T, 4>>()));
    values.push_back(makeZero(makeStructType(String(vtlcmd::valueType<T>().name), {})));
  });
  for (const Value& held : values) {
    const Any any = toAny(held);
    for (const Value& wanted : values) {
      const Type type = wanted.getType();
      if (&held == &wanted) {
        EXPECT_TRUE(equalTypes(fromAny(type, any).getType(), type));
        continue;
      }
      const std::string text = "The Any holds no value of type '" + testing::nameOf(type) + "'.";
      expectError<std::invalid_argument>([&] { fromAny(type, any); }, text.c_str());
    }
  }
}

TEST(AnyBridge, FindsNothingInAnEmptyAny) {
  expectError<std::invalid_argument>([] { fromAny(typeOf<float>(), Any()); },
                                     "The Any holds no value of type 'float'.");
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

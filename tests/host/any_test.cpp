#include "vtlcmd/host/any.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "support/type_samples.h"
#include "support/type_tests.h"
#include "support/watched_array.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd {
namespace {

using testing::sampleValue;

/// Equality of stored values: objects and arrays by identity.
template <typename T>
bool same(const T& a, const T& b) {
  if constexpr (requires { a.control; }) {
    return a.pointer == b.pointer && a.control == b.control;
  } else {
    return a == b;
  }
}

void expectHeldAt(const void* held, const Any& any, const Orvel::Internal::TypeInfo& tag,
                  bool inPlace) {
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(&any.type(), &tag);
  EXPECT_EQ(any_operations::address(any), held);
  EXPECT_EQ(inPlace, held == &any) << "in place exactly when it fits three words";
}

template <typename T>
void expectHolds(const Any& any, const T& value) {
  const T* held = anyCast<T>(&any);
  expectHeldAt(held, any, tagOf<T>(), storedInPlace<T>);
  EXPECT_TRUE(held != nullptr && same(*held, value));
}

void expectEmpty(const Any& any) {
  EXPECT_EQ(any.manager, nullptr);
  EXPECT_EQ(&any.type(), &Orvel::Internal::TypeInfo::s_void);
  EXPECT_EQ(anyCast<std::int32_t>(&any), nullptr);
}

template <typename T>
void exerciseEveryOperation(const T& value, const T& other) {
  const Any original = makeAny(value);
  expectHolds(original, value);

  Any copy(original);
  expectHolds(copy, value);
  expectHolds(original, value);

  Any moved(std::move(copy));
  expectHolds(moved, value);
  expectEmpty(copy);  // NOLINT(bugprone-use-after-move): a moved-from Any is empty by contract

  Any assigned = makeAny(other);
  assigned = original;
  expectHolds(assigned, value);
  assigned = makeAny(other);
  expectHolds(assigned, other);
  assigned = Any{};
  expectEmpty(assigned);

  Any& self = moved;
  moved = self;
  expectEmpty(moved);

  Any a = makeAny(value);
  Any b = makeAny(other);
  swap(a, b);
  expectHolds(a, other);
  expectHolds(b, value);
  Any empty;
  swap(a, empty);
  expectEmpty(a);
  expectHolds(empty, other);
  swap(a, empty);
  expectHolds(a, other);
  expectEmpty(empty);
  swap(a, a);
  expectHolds(a, other);
  swap(empty, empty);
  expectEmpty(empty);
  Any alsoEmpty;
  swap(empty, alsoEmpty);
  expectEmpty(empty);
  expectEmpty(alsoEmpty);

  Any heap = makeAny(Math::double4{});
  swap(a, heap);
  expectHolds(heap, other);
  expectHolds(a, Math::double4{});
}

template <typename T>
class AnyOfRegisteredType : public ::testing::Test {};
TYPE_TEST_SUITE(AnyOfRegisteredType, testing::RegisteredTestTypes);

TYPE_TEST(AnyOfRegisteredType, EveryOperationAtRank0) {
  exerciseEveryOperation(sampleValue<TypeParam>(0), sampleValue<TypeParam>(1));
}

TYPE_TEST(AnyOfRegisteredType, EveryOperationAtEveryArrayRank) {
  const TypeParam value = sampleValue<TypeParam>(0);
  const auto exercise = [&]<std::uint32_t Rank>(std::integral_constant<std::uint32_t, Rank>) {
    exerciseEveryOperation(testing::nestedArray<TypeParam, Rank>(value),
                           testing::nestedArray<TypeParam, Rank>(value));
  };
  exercise(std::integral_constant<std::uint32_t, 1>{});
  exercise(std::integral_constant<std::uint32_t, 2>{});
  exercise(std::integral_constant<std::uint32_t, 3>{});
}

/// The types whose single values a cast finds.
std::vector<std::string> typesThatCast(const Any& any) {
  std::vector<std::string> names;
  forEachRow(registeredTypes, [&]<typename T>(const RegisteredType<T>& row) {
    if (anyCast<T>(&any) != nullptr) names.emplace_back(row.name);
  });
  return names;
}

TYPE_TEST(AnyOfRegisteredType, CastWantsTheExactTypeAndRank) {
  const Any single = makeAny(sampleValue<TypeParam>(0));
  const Any array = makeAny(testing::nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0)));
  EXPECT_EQ((anyCast<StoredArray<TypeParam, 1>>(&single)), nullptr);
  EXPECT_EQ(anyCast<TypeParam>(&array), nullptr);
  EXPECT_EQ((anyCast<StoredArray<TypeParam, 2>>(&array)), nullptr);
  EXPECT_EQ(anyCast<TypeParam>(nullptr), nullptr);
  EXPECT_THAT(typesThatCast(single), ::testing::ElementsAre(valueType<TypeParam>().name));
  EXPECT_THAT(typesThatCast(array), ::testing::IsEmpty());
}

TYPE_TEST(AnyOfRegisteredType, CopiesAndMovesOfAnArrayOfAnyRankCountItsUses) {
  const auto useAndEnd = [](const auto& array) {
    const std::uint64_t one = Orvel::useCount(array);
    const auto expectUses = [&](std::uint64_t uses) {
      EXPECT_EQ(Orvel::useCount(array), one * uses);
    };
    const Any any = makeAny(array);
    expectUses(2);
    Any copy = any;
    expectUses(3);
    Any moved = std::move(copy);
    expectUses(3);
    expectHolds(moved, array);
    moved = Any{};
    expectUses(2);
  };
  const auto value = sampleValue<TypeParam>(0);
  testing::expectUsesGivenBack(value, useAndEnd);
  testing::expectUsesGivenBack(testing::nestedArray<TypeParam, 1>(value), useAndEnd);
  testing::expectUsesGivenBack(testing::nestedArray<TypeParam, 2>(value), useAndEnd);
}

TEST(Any, CopiesOfAnObjectCountItsUses) {
  const ObjectPtr object = Vantrel::createObject();
  testing::WatchedBlock block;
  for (Orvel::Internal::ControlBlock* control :
       {&block, static_cast<testing::WatchedBlock*>(nullptr)}) {
    const ObjectPtr pointer(object.get(), control);
    const Any any = makeAny(pointer);
    const Any copy = any;
    expectHolds(copy, pointer);
    EXPECT_EQ(Orvel::useCount(pointer), control == nullptr ? 0U : 3U);
  }
  EXPECT_EQ(block.ends, 1);
}

TYPE_TEST(AnyOfRegisteredType, CopyOfAnArraySharesIt) {
  const auto array = testing::nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0));
  ASSERT_EQ(Orvel::useCount(array), 1U);
  {
    const Any any = makeAny(array);
    EXPECT_EQ(Orvel::useCount(array), 2U);
    Any copy = any;
    EXPECT_EQ(Orvel::useCount(array), 3U);
    const Any moved = std::move(copy);
    EXPECT_EQ(Orvel::useCount(array), 3U);
  }
  EXPECT_EQ(Orvel::useCount(array), 1U);
}

TEST(Any, StartsWithFourZeroWords) {
  const Any any;
  const std::uintptr_t zero[4] = {};
  EXPECT_EQ(std::memcmp(&any, zero, sizeof(any)), 0);
  expectEmpty(any);
}

TEST(Any, HoldsTheInputOnlyRecordsOnTheHeap) {
  const Any time = makeAny(Vantrel::Simulation::Time{1, 0.5, 12, 0.25});
  const Any copy = time;
  const auto* held = anyCast<Vantrel::Simulation::Time>(&copy);
  ASSERT_NE(held, nullptr);
  EXPECT_NE(held, anyCast<Vantrel::Simulation::Time>(&time));
  EXPECT_EQ(held->frame, 12);

  Any scene = makeAny(Vantrel::File::Project::SceneInfo{"file", "dir/", "second", true});
  const auto* payload = anyCast<Vantrel::File::Project::SceneInfo>(&scene);
  const Any moved = std::move(scene);
  const auto* after = anyCast<Vantrel::File::Project::SceneInfo>(&moved);
  EXPECT_EQ(after, payload);
  EXPECT_STREQ(after->fileName.c_str(), "file");
  EXPECT_STREQ(after->directory.c_str(), "dir/");
  EXPECT_STREQ(after->secondaryPath.c_str(), "second");
  EXPECT_TRUE(after->hasSecondaryPath);
}

TEST(Any, MoveOfAHeapValueKeepsItsPayloadWhereItIs) {
  Any any = makeAny(sampleValue<Math::double4>(0));
  const void* payload = any_operations::address(any);
  const Any moved = std::move(any);
  EXPECT_EQ(any_operations::address(moved), payload);
}

TEST(Any, MoveOfAnInPlaceValueTakesExactlyItsBytes) {
  Any any = makeAny(std::int32_t{-1});
  const Any moved = std::move(any);
  std::uint32_t words[6];
  std::memcpy(words, &moved.storage, sizeof(words));
  EXPECT_THAT(words, ::testing::ElementsAre(0xFFFFFFFFU, 0U, 0U, 0U, 0U, 0U));
}

TEST(Any, CopyAndMoveTreatTheirDestinationAsRaw) {
  Any source = makeAny(std::int32_t{5});
  alignas(Any) std::byte raw[sizeof(Any)];
  std::memset(raw, 0xAB, sizeof(raw));
  AnyOpArgs args{AnyOp::copy, &source, raw, nullptr};
  source.manager(&args);
  Any& copied = *reinterpret_cast<Any*>(raw);
  expectHolds(copied, std::int32_t{5});
  std::uintptr_t second = 1;
  std::memcpy(&second, raw + sizeof(second), sizeof(second));
  EXPECT_EQ(second, 0U);

  std::memset(raw, 0xAB, sizeof(raw));
  args = {AnyOp::move, &source, raw, nullptr};
  source.manager(&args);
  expectHolds(copied, std::int32_t{5});
  expectEmpty(source);
}

TEST(Any, ATagOfTheSameTextAtAnotherAddressCasts) {
  const std::string spelling = "H";
  const auto tag = makeTag(spelling, 0, 0);
  const Any any = makeAny(std::int32_t{5});
  EXPECT_EQ(any_operations::cast(any, tag), any_operations::address(any));
  EXPECT_EQ(any_operations::cast(any, typeTag<std::uint32_t, 0>), nullptr);
}

/// A held value is found by what its tag says, not by where the tag is, and by nothing else.
void expectCastGoesByContent(const Any& any) {
  const void* address = any_operations::address(any);
  const Orvel::Internal::TypeInfo& own = any.type();
  const std::string spelling(own.name, own.length);
  const auto castTo = [&](const std::string& name, int kind, std::uint32_t rank) {
    const auto tag = makeTag(name, static_cast<std::uint8_t>(kind), rank);
    return any_operations::cast(any, tag);
  };
  EXPECT_EQ(any_operations::cast(any, own), address);
  EXPECT_EQ(castTo(spelling, own.kind, own.rank), address);
  EXPECT_EQ(castTo(spelling, own.kind + 1, own.rank), nullptr);
  EXPECT_EQ(castTo(spelling, own.kind, own.rank + 1), nullptr);
  EXPECT_EQ(castTo(spelling + "@", own.kind, own.rank), nullptr);
  EXPECT_EQ(castTo(spelling.substr(1), own.kind, own.rank), nullptr);
  for (std::size_t i = 0; i < spelling.size(); ++i) {
    std::string changed = spelling;
    changed[i] = '$';
    EXPECT_EQ(castTo(changed, own.kind, own.rank), nullptr) << changed;
  }
  EXPECT_EQ(castTo("", own.kind, own.rank), nullptr);
  auto unique = makeTag(spelling, own.kind, own.rank);
  unique.unique = 1;
  EXPECT_EQ(any_operations::cast(any, unique), address);
}

TYPE_TEST(AnyOfRegisteredType, CastGoesByWhatTheTagSays) {
  expectCastGoesByContent(makeAny(sampleValue<TypeParam>(0)));
  expectCastGoesByContent(makeAny(testing::nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0))));
}

TEST(Any, CastOfARecordGoesByWhatTheTagSays) {
  expectCastGoesByContent(makeAny(Vantrel::Simulation::Time{}));
  expectCastGoesByContent(makeAny(Vantrel::File::Project::SceneInfo{}));
}

TEST(Any, AForeignTypeTravelsWithItsOwnManager) {
  struct Foreign {
    double numbers[5];
  };
  static constexpr auto tag = makeTag("UForeign@@", 0, 0);
  Any any = makeTaggedAny<tag>(Foreign{{1, 2, 3, 4, 5}});
  const Any copy = any;
  EXPECT_EQ(&copy.type(), &tag);
  EXPECT_EQ(static_cast<const Foreign*>(any_operations::cast(copy, tag))->numbers[4], 5);
}

}  // namespace
}  // namespace vtlcmd

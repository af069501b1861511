#include "vtlcmd/stand_in/value_factory.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

#include "closed/support/expect_error.h"
#include "closed/support/failing_allocation.h"
#include "closed/support/stored_samples.h"
#include "closed/support/type_text.h"

namespace Orvel {
namespace {

using testing::expectError;
using testing::nameOf;
using testing::same;
using testing::sample;
using vtlcmd::ObjectPtr;
using vtlcmd::StoredArray;

TEST(StoredValue, GivesBackWhatItWasMadeOf) {
  testing::forEachStoredType([]<typename Stored>(const Stored& source) {
    const Value value = makeValue(source);
    EXPECT_TRUE(equalTypes(value.getType(), typeOf<Stored>()));
    EXPECT_TRUE(same(valueAs<Stored>(value), source));
    const void* address = &valueAs<Stored>(value);
    EXPECT_EQ(address, valueAddress(value));
  });
}

TEST(StoredValue, ArraysAreSharedAndNeverCopied) {
  testing::forEachStoredElement([]<typename T>() {
    const auto array = testing::sampleArray<T, 2>();
    const Value value = makeValue(array);
    EXPECT_EQ(useCount(array), 2U);
    {
      const auto opened = value.getArray<StoredArray<T, 1>>();
      EXPECT_TRUE(opened.get() == array.get());
      EXPECT_EQ(useCount(array), 3U);
      const Value row = ArrayValue(value).getElement(1);
      EXPECT_TRUE(same(valueAs<StoredArray<T, 1>>(row), (*array)[1]));
      EXPECT_EQ(useCount((*array)[1]), 2U);
    }
    EXPECT_EQ(useCount(array), 2U);
    EXPECT_EQ(useCount((*array)[1]), 1U);
  });
}

TEST(StoredValue, ZeroIsTheEmptyInitialiserAndForArraysAnEmptyOne) {
  testing::forEachStoredElement([]<typename T>() {
    const Value zero = makeZero(typeOf<T>());
    EXPECT_TRUE(same(valueAs<T>(zero), T{}));
    const Value zeroArray = makeZero(typeOf<StoredArray<T, 1>>());
    const auto& array = valueAs<StoredArray<T, 1>>(zeroArray);
    ASSERT_TRUE(array.get() != nullptr);
    EXPECT_EQ(array->size, 0U);
  });
  EXPECT_EQ(ArrayValue(makeZero(typeNamed(String("array<array<array<array<int>>>>")))).size(), 0U);
}

TEST(StoredValue, ArraysMadeOfValuesAreArraysOfTheType) {
  testing::forEachStoredElement([]<typename T>() {
    const T first = sample<T>(0);
    const T second = sample<T>(1);
    const Value row = makeArray(typeOf<T>(), std::vector{makeValue(first), makeValue(second)});
    const auto& array = valueAs<StoredArray<T, 1>>(row);
    ASSERT_EQ(array->size, 2U);
    EXPECT_EQ(array->capacity, 2U);
    EXPECT_TRUE(same((*array)[0], first));
    EXPECT_TRUE(same((*array)[1], second));

    const Value table = makeArray(row.getType(), std::vector{row, row, row});
    const auto& rows = valueAs<StoredArray<T, 2>>(table);
    ASSERT_EQ(rows->size, 3U);
    EXPECT_TRUE(same((*rows)[2], array));
    EXPECT_EQ(useCount(array), 4U);
  });
}

TEST(StoredValue, ReadAsAnotherTypeThrowsAndNamesBoth) {
  const Value table = makeZero(typeNamed(String("array<array<float>>")));
  expectError<std::invalid_argument>(
      [&] { valueAs<StoredArray<float, 1>>(table); },
      "A value of type 'array<array<float>>' was read as 'array<float>'.");
  expectError<std::invalid_argument>(
      [&] { valueAs<StoredArray<double, 2>>(table); },
      "A value of type 'array<array<float>>' was read as 'array<array<double>>'.");
  expectError<std::invalid_argument>(
      [&] { valueAs<float>(makeZero(makeStructType(String("float"), {}))); },
      "A value of type 'float' was read as 'float'.");
}

class OwnStruct : public ::testing::Test {
 protected:
  /// A byte first, so that the members behind it are padded.
  const std::vector<MemberSpec> members_{{"flag", typeOf<bool>()},
                                         {"time", typeOf<double>()},
                                         {"text", typeOf<String>()},
                                         {"list", typeOf<StoredArray<float, 1>>()},
                                         {"object", typeOf<ObjectPtr>()}};
  const Type type_ = makeStructType(String("Own::Row"), members_);

  Value make(const StoredArray<float, 1>& list, const ObjectPtr& object) const {
    return makeStruct(type_, std::vector{makeValue(true), makeValue(2.5), makeValue(String("abc")),
                                         makeValue(list), makeValue(object)});
  }
};

TEST_F(OwnStruct, LiesInMemoryAsInCpp) {
  struct Row {
    bool flag;
    double time;
    String text;
    StoredArray<float, 1> list;
    ObjectPtr object;
  };
  const auto list = testing::sampleArray<float, 1>();
  const ObjectPtr object = Vantrel::createObject();
  const Value value = make(list, object);
  const auto& row = *static_cast<const Row*>(valueAddress(value));
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(&row) % alignof(Row), 0U);
  EXPECT_TRUE(row.flag);
  EXPECT_EQ(row.time, 2.5);
  EXPECT_TRUE(row.text == "abc");
  EXPECT_TRUE(same(row.list, list));
  EXPECT_TRUE(same(row.object, object));
}

TEST_F(OwnStruct, SharesWhatItsMembersShare) {
  const auto list = testing::sampleArray<float, 1>();
  const ObjectPtr object = Vantrel::createObject();
  {
    const Value value = make(list, object);
    EXPECT_EQ(useCount(list), 2U);
    const Value array = makeArray(type_, std::vector{value, value});
    EXPECT_EQ(useCount(list), 4U);
    EXPECT_EQ(useCount(object), 4U);
    const Value element = ArrayValue(array).getElement(1);
    EXPECT_TRUE(equalTypes(element.getType(), type_));
    EXPECT_EQ(useCount(list), 5U);
  }
  EXPECT_EQ(useCount(list), 1U);
  EXPECT_EQ(useCount(object), 1U);
}

TEST_F(OwnStruct, NestsAndHasAZero) {
  const MemberSpec members[] = {{"count", typeOf<std::uint8_t>()}, {"row", type_}};
  const Type outer = makeStructType(String("Own::Outer"), members);
  const Value row = StructValue(makeZero(outer))["row"];
  const StructValue zero(row);
  EXPECT_FALSE(zero["flag"].getBool());
  EXPECT_EQ(zero["time"].getDouble(), 0);
  EXPECT_TRUE(zero["text"].getString() == "");
  EXPECT_EQ(ArrayValue(zero["list"]).size(), 0U);
  EXPECT_EQ(zero["object"].getOrvelClass().get(), nullptr);
}

TEST_F(OwnStruct, WithoutMembersIsStillAValue) {
  const Type empty = makeStructType(String("Own::Empty"), {});
  const Value value = makeStruct(empty, {});
  EXPECT_EQ(nameOf(value.getType()), "Own::Empty");
  EXPECT_EQ(ArrayValue(makeArray(empty, std::vector{value, makeZero(empty)})).size(), 2U);
}

TEST(FailedAllocation, LeavesNothingOfAStructOrAnArray) {
  // The later ones allocate, so that there is something to take back.
  const MemberSpec specs[] = {{"object", typeOf<ObjectPtr>()},
                              {"first", typeOf<StoredArray<float, 1>>()},
                              {"second", typeOf<StoredArray<float, 1>>()},
                              {"text", typeOf<String>()},
                              {"more", typeOf<String>()}};
  const Type type = makeStructType(String("Own::Row"), specs);
  const ObjectPtr object = Vantrel::createObject();
  const auto list = testing::sampleArray<float, 1>();
  const std::vector members{makeValue(object), makeValue(list), makeValue(list),
                            makeValue(String("abc")), makeValue(String("def"))};
  const Value value = makeStruct(type, members);

  const auto failEach = [&](auto operation) {
    const std::size_t blocks = testing::liveBlocks();
    const std::size_t failures = testing::failEveryAllocation(operation, [&] {
      EXPECT_EQ(testing::liveBlocks(), blocks);
      EXPECT_EQ(useCount(object), 3U);
      EXPECT_EQ(useCount(list), 5U);
    });
    EXPECT_EQ(testing::liveBlocks(), blocks);
    EXPECT_EQ(failures > 0, testing::reachesLibraries);
  };
  failEach([&] { makeStruct(type, members); });
  const std::vector elements{value, value, value};
  failEach([&] { makeArray(type, elements); });
  failEach([&] { makeZero(type); });
  failEach([&] { Internal::copyValue(type, valueAddress(value)); });
}

TEST(MakeStruct, MakesTheStructsOfCppToo) {
  using SceneInfo = Vantrel::File::Project::SceneInfo;
  const Value value = makeStruct(typeOf<SceneInfo>(),
                                 std::vector{makeValue(String("file")), makeValue(String("dir/")),
                                             makeValue(String()), makeValue(true)});
  EXPECT_TRUE(same(valueAs<SceneInfo>(value), SceneInfo{"file", "dir/", "", true}));

  const Value vector =
      makeStruct(typeOf<vtlcmd::Math::float2>(), std::vector{makeValue(1.5F), makeValue(-2.0F)});
  EXPECT_EQ(valueAs<vtlcmd::Math::float2>(vector), (vtlcmd::Math::float2{{1.5F, -2.0F}}));
}

TEST(MakeStruct, RefusesWhatDoesNotFit) {
  const Type type = typeOf<vtlcmd::Math::float2>();
  expectError<std::invalid_argument>([&] { makeStruct(type, std::vector{makeValue(1.0F)}); },
                                     "The type 'Math::float2' has 2 members, not 1.");
  expectError<std::invalid_argument>(
      [&] {
        makeStruct(type, std::vector{makeValue(1.0F), makeValue(1)});
      },
      "The member 'y' of the type 'Math::float2' is of type 'float', not 'int'.");
  expectError<std::invalid_argument>([&] { makeStruct(typeOf<int>(), {}); },
                                     "The type 'int' is no struct type.");
}

TEST(MakeArray, RefusesElementsOfAnotherType) {
  expectError<std::invalid_argument>(
      [] {
        makeArray(typeOf<float>(), std::vector{makeValue(1.0F), makeValue(1.0)});
      },
      "Element 1 is of type 'double', not 'float'.");
}

TEST(MakeArray, MayBeEmpty) {
  const Value value = makeArray(typeOf<float>(), {});
  EXPECT_EQ((valueAs<StoredArray<float, 1>>(value)->size), 0U);
}

}  // namespace
}  // namespace Orvel

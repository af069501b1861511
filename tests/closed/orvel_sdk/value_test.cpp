#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>
#include <vector>

#include "closed/support/expect_error.h"
#include "closed/support/stored_samples.h"
#include "closed/support/type_text.h"
#include "orvel_sdk/representation.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/stand_in/make_string.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace Orvel {
namespace {

using testing::expectError;
using testing::nameOf;
using testing::sample;
using vtlcmd::ObjectPtr;
using vtlcmd::StoredArray;

/// The getter of one type, and the name of that type.
struct Getter {
  const char* type;
  void (*call)(const Value&);
};

const Getter getters[] = {
    {"bool", [](const Value& value) { value.getBool(); }},
    {"int", [](const Value& value) { value.getInt(); }},
    {"uint", [](const Value& value) { value.getUInt(); }},
    {"long", [](const Value& value) { value.getLong(); }},
    {"ulong", [](const Value& value) { value.getULong(); }},
    {"float", [](const Value& value) { value.getFloat(); }},
    {"double", [](const Value& value) { value.getDouble(); }},
    {"string", [](const Value& value) { value.getString(); }},
    {"Object", [](const Value& value) { value.getOrvelClass(); }},
};

TEST(Value, EachGetterReadsItsType) {
  EXPECT_TRUE(makeValue(true).getBool());
  EXPECT_EQ(makeValue(std::int32_t{-2147483647 - 1}).getInt(), -2147483647 - 1);
  EXPECT_EQ(makeValue(std::uint32_t{4294967295}).getUInt(), 4294967295);
  EXPECT_EQ(makeValue(std::int64_t{-9000000000}).getLong(), -9000000000);
  EXPECT_EQ(makeValue(std::uint64_t{18446744073709551615U}).getULong(), 18446744073709551615U);
  EXPECT_EQ(makeValue(0.1F).getFloat(), 0.1F);
  EXPECT_EQ(makeValue(0.1).getDouble(), 0.1);
  EXPECT_EQ(testing::textOf(makeValue(makeString({"a\0b", 3})).getString()),
            std::string("a\0b", 3));
}

TEST(Value, ClassGetterSharesTheObject) {
  const ObjectPtr object = Vantrel::createObject();
  const Value value = makeValue(object);
  Ptr<void> opaque = value.getOrvelClass();
  EXPECT_EQ(useCount(object), 3U);
  const auto same = std::move(opaque).castTo<const Vantrel::Object>();
  EXPECT_EQ(same.get(), object.get());
  EXPECT_EQ(useCount(object), 3U);
}

TEST(Value, EveryOtherGetterThrowsAndNamesBothTypes) {
  for (const String& name : knownTypeNames()) {
    const Value value = makeZero(typeNamed(name));
    for (const Getter& getter : getters) {
      if (name == getter.type) {
        EXPECT_NO_THROW(getter.call(value)) << name.c_str();
        continue;
      }
      const std::string text =
          "A value of type '" + testing::textOf(name) + "' was read as '" + getter.type + "'.";
      expectError<std::invalid_argument>([&] { getter.call(value); }, text.c_str());
    }
  }
}

TEST(Value, CopiesShareTheValue) {
  const Value value = makeValue(String("abc"));
  EXPECT_EQ(useCount(Internal::repOf(value)), 1U);
  Value assigned = makeValue(1);
  assigned = value;
  EXPECT_EQ(useCount(Internal::repOf(value)), 2U);
  EXPECT_TRUE(assigned.getString() == "abc");
}

/// A control block as another compiler lays it out: nothing but a table address and a count.
struct RawBlock {
  const void* const* table;
  std::uint64_t useCount;
};

int rawEnds;
void rawEnd(void*) { ++rawEnds; }
const void* const rawTable[] = {nullptr, reinterpret_cast<const void*>(&rawEnd)};

TEST(Value, ReleasesAnArrayOfAnotherModuleThroughTheSecondSlot) {
  rawEnds = 0;
  Array<float> array;
  array.append(1.5F);
  RawBlock block{rawTable, 1};
  {
    const Value value =
        makeValue(StoredArray<float, 1>(&array, reinterpret_cast<Internal::ControlBlock*>(&block)));
    EXPECT_EQ(block.useCount, 1U);
    const Ptr<const Array<float>> opened = value.getArray<float>();
    EXPECT_EQ(block.useCount, 2U);
    EXPECT_EQ(opened.get(), &array);
    EXPECT_EQ(ArrayValue(value).getElement(0).getFloat(), 1.5F);
  }
  EXPECT_EQ(block.useCount, 0U);
  EXPECT_EQ(rawEnds, 1);
}

TEST(Value, MayBeUsedOnSeveralThreads) {
  const auto array = testing::sampleArray<String, 2>();
  const Value value = makeValue(array);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
      threads.emplace_back([own = value] {
        for (int i = 0; i < 2000; ++i) {
          const Value row = ArrayValue(own).getElement(1);
          EXPECT_TRUE(ArrayValue(row).getElement(0).getString() == sample<String>(0));
          EXPECT_EQ(row.getArray<String>()->size, 2U);
        }
      });
    }
  }
  EXPECT_EQ(useCount(array), 2U);
  EXPECT_EQ(useCount((*array)[1]), 1U);
  EXPECT_EQ(useCount(Internal::repOf(value)), 1U);
}

TEST(ArrayValue, WalksElementsInOrderAtAnyDepth) {
  Value value = makeValue(testing::sampleArray<std::int32_t, 6>());
  for (int depth = 6; depth > 0; --depth) {
    EXPECT_EQ(ArrayValue(value).size(), 2U);
    value = ArrayValue(value).getElement(1);
  }
  EXPECT_EQ(nameOf(value.getType()), "int");
  EXPECT_EQ(value.getInt(), sample<std::int32_t>(1));
}

TEST(ArrayValue, RefusesOtherValues) {
  expectError<std::invalid_argument>([] { ArrayValue{makeValue(1)}; },
                                     "A value of type 'int' was read as an array.");
  expectError<std::invalid_argument>([] { makeValue(1.5).getArray<double>(); },
                                     "A value of type 'double' was read as an array.");
}

TEST(ArrayValue, RefusesElementsBeyondTheEnd) {
  ArrayValue array(makeValue(testing::sampleArray<float, 1>()));
  expectError<std::out_of_range>(
      [&] { array.getElement(2); },
      "Element 2 was asked for in a value of type 'array<float>' with 2 elements.");
}

TEST(ArrayValue, NullArrayHasNoElements) {
  EXPECT_EQ(ArrayValue(makeValue(StoredArray<float, 1>())).size(), 0U);
}

TEST(StructValue, GivesMembersByName) {
  const StructValue value(makeValue(vtlcmd::Math::double3{{1.5, 2.5, 3.5}}));
  EXPECT_EQ(nameOf(value.getType()), "Math::double3");
  EXPECT_EQ(value["x"].getDouble(), 1.5);
  EXPECT_EQ(value["y"].getDouble(), 2.5);
  const StructValue::Member last = value["z"];
  const StructValue::Member copy = last;
  EXPECT_EQ(copy.getDouble(), 3.5);
  EXPECT_EQ(nameOf(copy.getType()), "double");
}

TEST(StructValue, RefusesUnknownMembersAndOtherValues) {
  const StructValue value(makeValue(vtlcmd::Math::float2{}));
  expectError<std::invalid_argument>([&] { value["z"]; },
                                     "The type 'Math::float2' has no member named 'z'.");
  expectError<std::invalid_argument>([] { StructValue{makeValue(1)}; },
                                     "A value of type 'int' was read as a struct.");
}

}  // namespace
}  // namespace Orvel

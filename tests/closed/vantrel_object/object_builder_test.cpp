#include "vtlcmd/stand_in/object_builder.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "closed/support/expect_error.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace Vantrel {
namespace {

using Orvel::String;
using Orvel::StringView;
using vtlcmd::Any;
using vtlcmd::anyCast;
using vtlcmd::makeAny;
using vtlcmd::ObjectPtr;

std::vector<std::string> keysOf(const Object& object) {
  std::vector<std::string> keys;
  for (const String& key : propertyKeys(object)) {
    const StringView view = key;
    keys.emplace_back(view.data, view.size);
  }
  return keys;
}

std::int32_t intUnder(const Object& object, const char* key) {
  const Any value = object.propertyByKey(String(key));
  const auto* number = anyCast<std::int32_t>(&value);
  return number == nullptr ? -1 : *number;
}

TEST(Object, StartsWithoutProperties) {
  const ObjectPtr object = createObject();
  EXPECT_EQ(Orvel::useCount(object), 1U);
  EXPECT_TRUE(keysOf(*object).empty());
  EXPECT_FALSE(object->propertyByKey(String("anything")).holdsValue());
  EXPECT_FALSE(object->propertyByKey(StringView{nullptr, 0}).holdsValue());
}

TEST(Object, KeepsPropertiesInOrderOfInsertion) {
  const auto object = createObject();
  for (const char* key : {"zebra", "apple", "", "mango"}) {
    setProperty(*object, String(key), makeAny(static_cast<std::int32_t>(String(key).c_str()[0])));
  }
  EXPECT_EQ(keysOf(*object), (std::vector<std::string>{"zebra", "apple", "", "mango"}));
  EXPECT_EQ(intUnder(*object, "apple"), 'a');
  EXPECT_EQ(intUnder(*object, ""), 0);
}

TEST(Object, SettingAgainReplacesInPlace) {
  const auto object = createObject();
  setProperty(*object, String("first"), makeAny(1));
  setProperty(*object, String("second"), makeAny(2));
  setProperty(*object, String("first"), makeAny(3));
  EXPECT_EQ(keysOf(*object), (std::vector<std::string>{"first", "second"}));
  EXPECT_EQ(intUnder(*object, "first"), 3);
}

TEST(Object, KeysAreComparedByLength) {
  const auto object = createObject();
  setProperty(*object, StringView{"a\0b", 3}, makeAny(1));
  EXPECT_FALSE(object->propertyByKey(String("a")).holdsValue());
  EXPECT_TRUE(object->propertyByKey(StringView{"a\0b", 3}).holdsValue());
  EXPECT_EQ(keysOf(*object), (std::vector{std::string("a\0b", 3)}));
}

TEST(Object, HandsOutSharedArrays) {
  const vtlcmd::StoredArray<float, 1> array = Orvel::makePtr<Orvel::Array<float>>();
  {
    const auto object = createObject();
    setProperty(*object, String("array"), makeAny(array));
    EXPECT_EQ(Orvel::useCount(array), 2U);
    const Any value = object->propertyByKey(String("array"));
    EXPECT_EQ(Orvel::useCount(array), 3U);
  }
  EXPECT_EQ(Orvel::useCount(array), 1U);
}

TEST(Object, CopyHasTheSamePropertiesAndItsOwnList) {
  const ObjectPtr inner = createObject();
  const auto original = createObject();
  setProperty(*original, String("inner"), makeAny(inner));
  setProperty(*original, String("number"), makeAny(1));
  const auto copy = copyObject(*original);
  EXPECT_EQ(Orvel::useCount(inner), 3U);
  EXPECT_EQ(keysOf(*copy), keysOf(*original));
  setProperty(*copy, String("number"), makeAny(2));
  setProperty(*copy, String("more"), makeAny(3));
  EXPECT_EQ(intUnder(*original, "number"), 1);
  EXPECT_EQ(keysOf(*original).size(), 2U);
}

TEST(Object, OfAnotherMakerIsRefused) {
  class OwnObject final : public Object {
    Any propertyByKey(StringView) const override { return {}; }
  };
  OwnObject own;
  const char* text = "The object was not made by createObject.";
  const auto refused = [&](auto call) {
    Orvel::testing::expectError<std::invalid_argument>(call, text);
  };
  refused([&] { setProperty(own, String("key"), Any()); });
  refused([&] { propertyKeys(own); });
  refused([&] { copyObject(own); });
}

}  // namespace
}  // namespace Vantrel

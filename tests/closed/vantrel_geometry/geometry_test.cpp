#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace Vantrel::Geometry {
namespace {

using Orvel::Ptr;
using Orvel::String;
using vtlcmd::Any;
using vtlcmd::makeAny;
using Names = std::vector<std::string>;

Any floats(std::initializer_list<float> elements) {
  auto array = Orvel::makeMutable<Orvel::Array<float>>();
  for (const float element : elements) array->append(element);
  return makeAny(vtlcmd::StoredArray<float, 1>(std::move(array)));
}

Names namesOf(const Object& object, const Ptr<Object>& prototype) {
  Names names;
  for (const String& name : getGeoPropNamesByPrototype(object, *prototype)) {
    names.emplace_back(name.c_str());
  }
  return names;
}

Ptr<Object> dataPrototype(const char* kind) { return getDataGeoPropPrototype(String(kind)); }

class Mesh : public ::testing::Test {
 protected:
  Mesh() {
    setDataProperty(*object_, String("position"), floats({1, 2}), String("vector"));
    setComponentProperty(*object_, String("points"), 2);
    setProperty(*object_, String("comment"), makeAny(String("no geometry")));
    setDataProperty(*object_, String("color"), floats({}));
    setComponentProperty(*object_, String("faces"), 4294967295);
    setDataProperty(*object_, String("normal"), floats({3}), String("vector"));
    setProperty(*object_, String("child"), makeAny(Ptr<Object>(createObject())));
  }

  const Orvel::MutablePtr<Object> object_ = createObject();
};

TEST_F(Mesh, ListsComponentsInOrderOfInsertion) {
  EXPECT_EQ(namesOf(*object_, getComponentGeoPropPrototype()), (Names{"points", "faces"}));
}

TEST_F(Mesh, GenericPrototypeCoversDataOfEveryKind) {
  EXPECT_EQ(namesOf(*object_, getDataGeoPropPrototype(sGenericDataGeoProp)),
            (Names{"position", "color", "normal"}));
}

TEST_F(Mesh, PrototypeOfAKindCoversThatKindAlone) {
  EXPECT_EQ(namesOf(*object_, dataPrototype("vector")), (Names{"position", "normal"}));
  EXPECT_EQ(namesOf(*object_, dataPrototype("other")), Names{});
  EXPECT_EQ(namesOf(*object_, createObject()), Names{});
}

TEST_F(Mesh, CountsElementsOfComponents) {
  EXPECT_EQ(getElementCount(*object_, String("points")), 2U);
  EXPECT_EQ(getElementCount(*object_, String("faces")), 4294967295U);
  for (const char* name : {"", "point", "position", "comment", "child"}) {
    EXPECT_EQ(getElementCount(*object_, String(name)), 0U) << name;
  }
}

TEST_F(Mesh, DataPropertyHoldsItsSharedArray) {
  const Ptr<Object> property = getDataGeoProperty(*object_, String("position"));
  ASSERT_TRUE(property);
  const Any data = property->propertyByKey(sData);
  const auto* array = vtlcmd::anyCast<vtlcmd::StoredArray<float, 1>>(&data);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ((*array)->size, 2U);
  EXPECT_EQ(Orvel::useCount(*array), 2U);
}

TEST_F(Mesh, GivesNoPropertyOfOtherNames) {
  for (const char* name : {"", "positions", "points", "comment", "child"}) {
    EXPECT_EQ(getDataGeoProperty(*object_, String(name)).get(), nullptr) << name;
  }
}

TEST_F(Mesh, SettingAgainReplacesInPlace) {
  setComponentProperty(*object_, String("points"), 7);
  setComponentProperty(*object_, String("color"), 1);
  EXPECT_EQ(getElementCount(*object_, String("points")), 7U);
  EXPECT_EQ(namesOf(*object_, getComponentGeoPropPrototype()), (Names{"points", "color", "faces"}));
  EXPECT_EQ(namesOf(*object_, getDataGeoPropPrototype(sGenericDataGeoProp)),
            (Names{"position", "normal"}));
}

TEST_F(Mesh, CopySharesItsProperties) {
  const auto copy = copyObject(*object_);
  EXPECT_EQ(getDataGeoProperty(*copy, String("normal")).get(),
            getDataGeoProperty(*object_, String("normal")).get());
  setComponentProperty(*copy, String("points"), 9);
  EXPECT_EQ(getElementCount(*object_, String("points")), 2U);
}

TEST(DataProperty, MayBeWithoutData) {
  const auto object = createObject();
  setDataProperty(*object, String("bare"), Any());
  const Ptr<Object> property = getDataGeoProperty(*object, String("bare"));
  ASSERT_TRUE(property);
  EXPECT_FALSE(property->propertyByKey(sData).holdsValue());
}

TEST(Prototypes, AreOneObjectAKind) {
  EXPECT_EQ(getComponentGeoPropPrototype().get(), getComponentGeoPropPrototype().get());
  EXPECT_EQ(dataPrototype("vector").get(), dataPrototype("vector").get());
  EXPECT_NE(dataPrototype("vector").get(), dataPrototype("color").get());
  EXPECT_NE(dataPrototype("vector").get(), getDataGeoPropPrototype(sGenericDataGeoProp).get());
  EXPECT_NE(getComponentGeoPropPrototype().get(),
            getDataGeoPropPrototype(sGenericDataGeoProp).get());
}

TEST(Prototypes, AreOneObjectOnAllThreads) {
  std::vector<const Object*> found(4);
  {
    std::vector<std::jthread> threads;
    for (const Object*& place : found) {
      threads.emplace_back([&place] { place = dataPrototype("asked for by four").get(); });
    }
  }
  EXPECT_EQ(found, std::vector<const Object*>(4, dataPrototype("asked for by four").get()));
}

}  // namespace
}  // namespace Vantrel::Geometry

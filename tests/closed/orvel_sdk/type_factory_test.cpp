#include "vtlcmd/stand_in/type_factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "closed/support/expect_error.h"
#include "closed/support/stored_samples.h"
#include "closed/support/type_text.h"

namespace Orvel {
namespace {

using ::testing::ElementsAre;
using testing::expectError;
using testing::membersOf;
using testing::nameOf;

TEST(TypeFactory, FindsEveryStoredTypeByItsName) {
  testing::forEachStoredElement([]<typename T>() {
    std::string name = vtlcmd::valueType<T>().name;
    Type built = typeOf<T>();
    for (std::uint32_t depth = 0; depth <= testing::deepest; ++depth) {
      EXPECT_EQ(nameOf(built), name);
      EXPECT_TRUE(equalTypes(built, typeNamed(String(name.c_str()))));
      EXPECT_EQ(built.getTypeKind() == TypeKind::array, depth > 0);
      name = "array<" + name + ">";
      built = makeArrayType(built);
    }
  });
}

TEST(TypeFactory, ArraysOfCppAreArrayTypes) {
  testing::forEachStoredElement([]<typename T>() {
    const Type array = typeOf<vtlcmd::StoredArray<T, 1>>();
    EXPECT_TRUE(equalTypes(array, makeArrayType(typeOf<T>())));
    EXPECT_TRUE(equalTypes(typeOf<vtlcmd::StoredArray<T, 2>>(), makeArrayType(array)));
    EXPECT_TRUE(equalTypes(typeOf<vtlcmd::StoredArray<T, 4>>(),
                           makeArrayType(makeArrayType(makeArrayType(array)))));
  });
}

TEST(TypeFactory, StoredTypesEqualThemselvesAlone) {
  std::vector<Type> types;
  testing::forEachStoredElement([&]<typename T>() {
    types.push_back(typeOf<T>());
    types.push_back(typeOf<vtlcmd::StoredArray<T, 1>>());
    types.push_back(typeOf<vtlcmd::StoredArray<T, 2>>());
  });
  for (const Type& a : types) {
    for (const Type& b : types) {
      EXPECT_EQ(equalTypes(a, b), &a == &b) << nameOf(a) << " " << nameOf(b);
    }
  }
}

TEST(TypeFactory, KnowsEveryStoredTypeInOrder) {
  std::vector<std::string> names;
  for (const String& name : knownTypeNames()) names.push_back(testing::textOf(name));
  std::vector<std::string> expected;
  vtlcmd::forEachRow(storedTypes, [&](const auto& row) { expected.emplace_back(row.name); });
  EXPECT_EQ(names, expected);
}

TEST(TypeFactory, RefusesOtherNames) {
  for (const std::string name :
       {"", "Int", "int ", " int", "array", "array<>", "array<int", "array<int>>", "array< int>",
        "array<array<int>", "Math::float5", "Array<int>"}) {
    const std::string text = "There is no type named '" + name + "'.";
    expectError<std::invalid_argument>([&] { typeNamed(String(name.c_str())); }, text.c_str());
  }
  EXPECT_THROW(typeNamed(StringView{"int\0", 4}), std::invalid_argument);
}

TEST(TypeFactory, MembersOfVectorsAreNamedInOrder) {
  EXPECT_THAT(membersOf(typeNamed(String("Math::float2"))), ElementsAre("x: float", "y: float"));
  EXPECT_THAT(membersOf(typeNamed(String("Math::double4"))),
              ElementsAre("x: double", "y: double", "z: double", "w: double"));
  EXPECT_THAT(membersOf(typeNamed(String("Math::uchar3"))),
              ElementsAre("x: unsigned char", "y: unsigned char", "z: unsigned char"));
}

TEST(TypeFactory, MembersOfMatricesAreNamedRowByRow) {
  EXPECT_THAT(membersOf(typeNamed(String("Math::short2x3"))),
              ElementsAre("r0c0: short", "r0c1: short", "r0c2: short", "r1c0: short", "r1c1: short",
                          "r1c2: short"));
  EXPECT_EQ(membersOf(typeNamed(String("Math::float4x4"))).back(), "r3c3: float");
}

TEST(TypeFactory, RecordsHaveTheirFieldsAsMembers) {
  EXPECT_THAT(membersOf(typeNamed(String("Simulation::Time"))),
              ElementsAre("mode: long", "time: double", "frame: double", "frameLength: double"));
  EXPECT_THAT(membersOf(typeNamed(String("File::Project::SceneInfo"))),
              ElementsAre("fileName: string", "directory: string", "secondaryPath: string",
                          "hasSecondaryPath: bool"));
}

TEST(TypeFactory, StructsAreTypesOfTheirOwn) {
  const MemberSpec members[] = {{"id", typeOf<std::int16_t>()},
                                {"rows", typeNamed(String("array<array<string>>"))}};
  const Type first = makeStructType(String("Own::Row"), members);
  const Type second = makeStructType(String("Own::Row"), members);
  EXPECT_EQ(nameOf(first), "Own::Row");
  EXPECT_EQ(nameOf(makeArrayType(makeArrayType(first))), "array<array<Own::Row>>");
  EXPECT_THAT(membersOf(first), ElementsAre("id: short", "rows: array<array<string>>"));
  EXPECT_TRUE(equalTypes(first, Type(first)));
  EXPECT_FALSE(equalTypes(first, second));
  EXPECT_TRUE(equalTypes(makeArrayType(first), makeArrayType(first)));
  EXPECT_FALSE(equalTypes(makeArrayType(first), makeArrayType(second)));
  EXPECT_FALSE(equalTypes(makeArrayType(first), first));
}

TEST(TypeFactory, NamesMayHoldNulBytes) {
  const Type type = makeStructType(StringView{"a\0b", 3}, {});
  EXPECT_EQ(nameOf(type), std::string("a\0b", 3));
  EXPECT_EQ(nameOf(makeArrayType(type)), std::string("array<a\0b>", 10));
}

TEST(TypeFactory, StructWithoutMembers) {
  EXPECT_TRUE(membersOf(makeStructType(String("Own::Empty"), {})).empty());
}

TEST(TypeFactory, RefusesTwoMembersOfOneName) {
  const MemberSpec members[] = {
      {"a", typeOf<float>()}, {"b", typeOf<float>()}, {"a", typeOf<bool>()}};
  expectError<std::invalid_argument>([&] { makeStructType(String("Own::Twice"), members); },
                                     "The struct 'Own::Twice' has two members named 'a'.");
}

TEST(TypeFactory, DepthCostsNoStack) {
  constexpr std::size_t depth = 200000;
  std::string name;
  for (std::size_t level = 0; level < depth; ++level) name += "array<";
  name += "int" + std::string(depth, '>');
  const Type type = typeNamed(StringView{name.data(), name.size()});
  EXPECT_EQ(nameOf(type), name);
  EXPECT_EQ(nameOf(ArrayType(type).getElementType()), name.substr(6, name.size() - 7));
}

}  // namespace
}  // namespace Orvel

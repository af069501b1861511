#include <gtest/gtest.h>
#include <stdexcept>

#include "closed/support/expect_error.h"
#include "closed/support/type_text.h"
#include "orvel_sdk/representation.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace Orvel {
namespace {

using testing::expectError;
using testing::nameOf;

TEST(Type, CopiesShareTheDescription) {
  const Type type = makeStructType(String("Own::Row"), {});
  EXPECT_EQ(useCount(Internal::repOf(type)), 1U);
  {
    Type assigned = typeOf<int>();
    assigned = type;
    const Type copy = assigned;
    EXPECT_EQ(useCount(Internal::repOf(type)), 3U);
    EXPECT_EQ(nameOf(copy), "Own::Row");
  }
  EXPECT_EQ(useCount(Internal::repOf(type)), 1U);
}

TEST(Type, KindTellsArraysFromTheRest) {
  EXPECT_EQ(static_cast<std::int32_t>(typeNamed(String("array<int>")).getTypeKind()), 14);
  for (const char* name : {"int", "string", "Object", "Math::float3", "Simulation::Time"}) {
    EXPECT_NE(typeNamed(String(name)).getTypeKind(), TypeKind::array) << name;
  }
}

TEST(ArrayType, GoesOneLevelDown) {
  Type type = typeNamed(String("array<array<array<array<Math::double3>>>>"));
  for (const char* name : {"array<array<array<Math::double3>>>", "array<array<Math::double3>>",
                           "array<Math::double3>", "Math::double3"}) {
    type = ArrayType(type).getElementType();
    EXPECT_EQ(nameOf(type), name);
  }
  EXPECT_TRUE(equalTypes(type, typeOf<vtlcmd::Math::double3>()));
}

TEST(ArrayType, RefusesOtherTypes) {
  expectError<std::invalid_argument>([] { ArrayType{typeOf<int>()}; },
                                     "The type 'int' is no array type.");
}

TEST(StructType, RefusesOtherTypes) {
  expectError<std::invalid_argument>([] { StructType{typeOf<String>()}; },
                                     "The type 'string' is no struct type.");
  expectError<std::invalid_argument>([] { StructType{typeNamed(String("array<Math::int2>"))}; },
                                     "The type 'array<Math::int2>' is no struct type.");
}

TEST(StructType, IteratorsCopyAndCompareByPosition) {
  const StructType type(typeOf<vtlcmd::Math::float2>());
  auto member = type.begin();
  const auto start = member;
  EXPECT_FALSE(start != member);
  EXPECT_EQ((member++)->getName(), "x");
  EXPECT_TRUE(start != member);
  EXPECT_EQ(member->getName(), "y");
  EXPECT_TRUE(member != type.end());
  member++;
  EXPECT_FALSE(member != type.end());
}

TEST(StructType, MembersAreValues) {
  const StructType type(makeStructType({"s", 1}, std::array{MemberSpec{"name", typeOf<float>()}}));
  const StructType::Member copy = *type.begin().operator->();
  EXPECT_EQ(copy.getName(), "name");
  EXPECT_TRUE(equalTypes(declaredType(copy), typeOf<float>()));
}

}  // namespace
}  // namespace Orvel

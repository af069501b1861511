#include "values/value_type.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

std::string typeRefusal(const std::string& text) {
  try {
    parseValueType(text);
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
  return "accepted";
}

TEST(ValueType, TakesNamesApart) {
  EXPECT_EQ(parseValueType("int"), (ValueType{"int", 0}));
  EXPECT_EQ(parseValueType("array<Math::float3>"), (ValueType{"Math::float3", 1}));
  EXPECT_EQ(parseValueType("array<array<array<array<Simulation::Time>>>>"),
            (ValueType{"Simulation::Time", 4}));
  EXPECT_EQ(parseValueType("array<signed char>"), (ValueType{"signed char", 1}));
}

TEST(ValueType, PutsThemTogether) {
  EXPECT_EQ(nameOf({"int", 0}), "int");
  EXPECT_EQ(nameOf({"int", 3}), "array<array<array<int>>>");
  EXPECT_STREQ(libraryTypeOf({"ulong", 2}).getFullyQualifiedName().c_str(), "array<array<ulong>>");
}

TEST(ValueType, RefusesOthers) {
  EXPECT_EQ(typeRefusal(""), "'' is no type");
  EXPECT_EQ(typeRefusal("array<>"), "'array<>' is no type");
  EXPECT_EQ(typeRefusal("array<int"), "'array<int' is no type");
  EXPECT_EQ(typeRefusal("array< int>"), "'array< int>' is no type; did you mean 'int' or 'uint'?");
  EXPECT_EQ(typeRefusal("Int"), "'Int' is no type; did you mean 'int'?");
  EXPECT_EQ(typeRefusal("Math::flaot3"),
            "'Math::flaot3' is no type; did you mean 'Math::float3', 'Math::float2' or "
            "'Math::float4'?");
}

TEST(ValueType, LimitsTheDepth) {
  const auto nested = [](int depth) {
    std::string name = "int";
    for (int i = 0; i < depth; ++i) name = "array<" + name + ">";
    return name;
  };
  EXPECT_EQ(typeRefusal(nested(256)), "accepted");
  EXPECT_EQ(typeRefusal(nested(257)), "a type has at most 256 array levels");
}

}  // namespace
}  // namespace vtlcmd::runner

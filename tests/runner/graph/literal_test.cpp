#include "graph/literal.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "graph/graph_error.h"
#include "graph/json_document.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

Orvel::Value literal(const char* type, const char* text) {
  const JsonDocument document(text);
  return literalValue(parseValueType(type), document.root());
}

template <typename T>
T single(const char* type, const char* text) {
  return Orvel::valueAs<T>(literal(type, text));
}

std::string literalRefusal(const char* type, const char* text) {
  try {
    literal(type, text);
  } catch (const GraphError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Literal, Integers) {
  EXPECT_EQ(single<std::int32_t>("int", "-2147483648"), -2147483648);
  EXPECT_EQ(single<std::uint32_t>("uint", "4294967295"), 4294967295U);
  EXPECT_EQ(single<std::int64_t>("long", "-9223372036854775808"),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(single<std::uint64_t>("ulong", "18446744073709551615"),
            std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(single<std::int16_t>("short", "-32768"), -32768);
  EXPECT_EQ(single<std::uint8_t>("unsigned char", "255"), 255);
}

TEST(Literal, IntegersOutOfRange) {
  EXPECT_EQ(literalRefusal("int", "2147483648"),
            "$: expected a value of type int, found 2147483648");
  EXPECT_EQ(literalRefusal("uint", "-1"), "$: expected a value of type uint, found -1");
  EXPECT_EQ(literalRefusal("ulong", "18446744073709551616"),
            "$: expected a value of type ulong, found 1.8446744073709552e+19");
  EXPECT_EQ(literalRefusal("short", "40000"), "$: expected a value of type short, found 40000");
  EXPECT_EQ(literalRefusal("int", "1.0"), "$: expected a value of type int, found 1.0");
}

TEST(Literal, FloatingNumbers) {
  EXPECT_EQ(single<float>("float", "1.5"), 1.5F);
  EXPECT_EQ(single<float>("float", "3"), 3.0F);
  EXPECT_EQ(single<float>("float", "3.4028235e38"), std::numeric_limits<float>::max());
  EXPECT_EQ(single<float>("float", "-3.4028235677973362e38"), std::numeric_limits<float>::lowest());
  EXPECT_EQ(single<double>("double", "-7"), -7.0);
  EXPECT_EQ(single<double>("double", "18446744073709551615"), 0x1p64);
  EXPECT_TRUE(std::isnan(single<float>("float", "\"nan\"")));
  EXPECT_EQ(single<double>("double", "\"inf\""), std::numeric_limits<double>::infinity());
  EXPECT_EQ(single<float>("float", "\"-inf\""), -std::numeric_limits<float>::infinity());
}

TEST(Literal, FloatsOutOfRange) {
  EXPECT_EQ(literalRefusal("float", "3.4028235677973366e38"),
            "$: expected a value of type float, found 3.4028235677973366e+38");
  EXPECT_EQ(literalRefusal("float", "1e39"), "$: expected a value of type float, found 1e+39");
  EXPECT_EQ(literalRefusal("float", "\"infinity\""),
            "$: expected a value of type float, found \"infinity\"");
}

TEST(Literal, OtherSingles) {
  EXPECT_TRUE(single<bool>("bool", "true"));
  EXPECT_STREQ(single<Orvel::String>("string", "\"a\\\"b\"").c_str(), "a\"b");
  EXPECT_FALSE(single<ObjectPtr>("Object", "null"));
  EXPECT_EQ(literalRefusal("bool", "1"), "$: expected a value of type bool, found 1");
  EXPECT_EQ(literalRefusal("string", "7"), "$: expected a value of type string, found 7");
  EXPECT_EQ(literalRefusal("Object", "{}"), "$: expected a value of type Object, found an object");
}

TEST(Literal, VectorsAndMatrices) {
  EXPECT_EQ(single<Math::float3>("Math::float3", "[1, 2.5, \"inf\"]"),
            (Math::float3{{1, 2.5F, std::numeric_limits<float>::infinity()}}));
  EXPECT_EQ(single<Math::int2x2>("Math::int2x2", "[1, 2, 3, 4]"), (Math::int2x2{{1, 2, 3, 4}}));
  EXPECT_EQ(literalRefusal("Math::float3", "[1, 2]"),
            "$: expected the 3 components of a Math::float3, found 2 elements");
  EXPECT_EQ(literalRefusal("Math::float3", "1"),
            "$: expected the 3 components of a Math::float3, found 1");
  EXPECT_EQ(literalRefusal("Math::int2", "[1, 0.5]"),
            "$[1]: expected a component of a Math::int2, found 0.5");
}

TEST(Literal, Arrays) {
  const Orvel::Value numbers = literal("array<uint>", "[1, 2, 3]");
  EXPECT_EQ(arrayIn<std::uint32_t>(numbers).size, 3U);
  EXPECT_EQ(arrayIn<std::uint32_t>(numbers)[2], 3U);
  const Orvel::Value rows = literal("array<array<bool>>", "[[true], []]");
  EXPECT_STREQ(rows.getType().getFullyQualifiedName().c_str(), "array<array<bool>>");
  Orvel::ArrayValue view(rows);
  EXPECT_EQ(view.size(), 2U);
  EXPECT_TRUE(arrayIn<bool>(view.getElement(0))[0]);
  EXPECT_EQ(arrayIn<bool>(view.getElement(1)).size, 0U);
  EXPECT_EQ(literalRefusal("array<array<int>>", "[[1], [2, true]]"),
            "$[1][1]: expected a value of type int, found true");
  EXPECT_EQ(literalRefusal("array<int>", "1"), "$: expected an array, found 1");
}

TEST(Literal, RecordsOfTheRunCannotBeWritten) {
  EXPECT_EQ(literalRefusal("Simulation::Time", "{}"),
            "$: a value of type Simulation::Time can't be written down");
  EXPECT_EQ(literalRefusal("array<File::Project::SceneInfo>", "[]"),
            "$: a value of type array<File::Project::SceneInfo> can't be written down");
}

TEST(Literal, LongTextsAreCutInMessages) {
  EXPECT_EQ(literalRefusal("int", "\"0123456789012345678901234567890123456789\""),
            "$: expected a value of type int, found \"012345678901234567890123456789012345678...");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "values/exact_value.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include "text/library_text.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"

namespace vtlcmd::runner {
namespace {

std::string exactValue(const ValueType& type, const Orvel::Value& value) {
  return runner::exactValue(type, value, 0);
}

template <typename T>
std::string single(const char* type, T value) {
  return exactValue({type, 0}, Orvel::makeValue<T>(std::move(value)));
}

template <typename T>
Orvel::Value arrayOfValues(std::initializer_list<T> elements) {
  return arrayValue(
      generateArray<T>(elements.size(), [&](std::uint64_t i) { return elements.begin()[i]; }));
}

TEST(ExactValue, SingleValuesKeepAllBits) {
  EXPECT_EQ(single("bool", true), "true");
  EXPECT_EQ(single("float", 0.1F), "0.1");
  EXPECT_EQ(single("double", 0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(single("ulong", std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
  EXPECT_EQ(single("string", libraryText("a\"b")), "\"a\\\"b\"");
  EXPECT_EQ(single("Math::float3", Vantrel::Math::float3{{1, 0.1F, -0.0F}}), "[1,0.1,-0.0]");
  EXPECT_EQ(single("Object", ObjectPtr{}), "null");
}

TEST(ExactValue, ArraysThatAreSummarisedHaveExactStatistics) {
  EXPECT_EQ(exactValue({"int", 1}, arrayOfValues<std::int32_t>({3, -1, 4})),
            R"({"sizes":[3],"min":-1,"max":4,"average":2})");
  EXPECT_EQ(exactValue({"float", 1}, arrayOfValues<float>({0.1F, 0.2F})),
            R"({"sizes":[2],"min":0.1,"max":0.2,"average":0.15})");
  EXPECT_EQ(
      exactValue({"Math::float2", 1}, arrayOfValues<Vantrel::Math::float2>({{{1, 5}}, {{3, 2}}})),
      R"({"sizes":[2],"min":[1,2],"max":[3,5],"average":[2,3.5]})");
}

TEST(ExactValue, OtherArraysHaveTheirSizes) {
  EXPECT_EQ(exactValue({"int", 1}, arrayOfValues<std::int32_t>({})), R"({"sizes":[0]})");
  EXPECT_EQ(exactValue({"string", 1}, arrayOfValues<Orvel::String>({libraryText("a")})),
            R"({"sizes":[1]})");
  EXPECT_EQ(exactValue({"Math::double2", 1}, arrayOfValues<Vantrel::Math::double2>({{{1, 2}}})),
            R"({"sizes":[1]})");
}

TEST(ExactValue, NestedArraysTellTheSizeOfEachLevel) {
  const Orvel::Type row = libraryTypeOf({"int", 1});
  const Orvel::Value two = arrayOfValues<std::int32_t>({1, 2});
  const Orvel::Value one = arrayOfValues<std::int32_t>({1});
  EXPECT_EQ(exactValue({"int", 2}, Orvel::makeArray(row, std::array{two, two, two})),
            R"({"sizes":[3,2]})");
  EXPECT_EQ(exactValue({"int", 2}, Orvel::makeArray(row, std::array{two, one})),
            R"({"sizes":[2,null]})");
  EXPECT_EQ(exactValue({"int", 2}, Orvel::makeArray(row, {})), R"({"sizes":[0,null]})");
}

TEST(ExactValue, ObjectsAreTheirProperties) {
  const Orvel::MutablePtr<Vantrel::Object> object = Vantrel::createObject();
  Vantrel::Geometry::setComponentProperty(*object, viewOf("points"), 2);
  Vantrel::Geometry::setDataProperty(*object, viewOf("weight"),
                                     Orvel::toAny(arrayOfValues<float>({0.5F, 1})));
  EXPECT_EQ(exactValue({"Object", 0},
                       Orvel::makeValue<ObjectPtr>(Orvel::MutablePtr<Vantrel::Object>(object))),
            R"({"points":{"count":2},)"
            R"("weight":{"type":"array<float>","sizes":[2],"min":0.5,"max":1,"average":0.75}})");
}

TEST(ExactValue, ArraysHaveAsManyElementsAsWanted) {
  const Orvel::Value numbers = arrayOfValues<std::int64_t>({9007199254740993, -1, 4});
  EXPECT_EQ(runner::exactValue({"long", 1}, numbers, 2),
            R"({"sizes":[3],"min":-1,"max":9007199254740993,"average":3002399841058816,)"
            R"("elements":[9007199254740993,-1]})");
  EXPECT_EQ(
      runner::exactValue({"string", 1},
                         arrayOfValues<Orvel::String>({libraryText("a"), libraryText("b")}), 10),
      R"({"sizes":[2],"elements":["a","b"]})");
  EXPECT_EQ(
      runner::exactValue(
          {"Math::double2", 1},
          arrayOfValues<Math::double2>({{{0.1, std::numeric_limits<double>::infinity()}}}), 1),
      R"({"sizes":[1],"elements":[[0.1,"inf"]]})");
  EXPECT_EQ(runner::exactValue({"bool", 1}, arrayOfValues<bool>({}), 1),
            R"({"sizes":[0],"elements":[]})");
  EXPECT_EQ(runner::exactValue({"int", 0}, Orvel::makeValue<std::int32_t>(3), 5), "3");
}

TEST(ExactValue, NestedArraysHaveTheFirstOfEachLevel) {
  const Orvel::Type row = libraryTypeOf({"int", 1});
  const Orvel::Value nested = Orvel::makeArray(
      row, std::array{arrayOfValues<std::int32_t>({1, 2, 3}), arrayOfValues<std::int32_t>({4}),
                      arrayOfValues<std::int32_t>({5})});
  EXPECT_EQ(runner::exactValue({"int", 2}, nested, 2),
            R"({"sizes":[3,null],"elements":[[1,2],[4]]})");
}

TEST(ExactValue, ArraysInObjectsHaveElementsToo) {
  const Orvel::MutablePtr<Vantrel::Object> object = Vantrel::createObject();
  Vantrel::Geometry::setDataProperty(*object, viewOf("code"),
                                     Orvel::toAny(arrayOfValues<std::int8_t>({7, -7, 1})));
  const ObjectPtr held{Orvel::MutablePtr<Vantrel::Object>(object)};
  const std::string code =
      R"({"code":{"type":"array<signed char>","sizes":[3],"elements":[7,-7]}})";
  EXPECT_EQ(runner::exactValue({"Object", 0}, Orvel::makeValue<ObjectPtr>(held), 2), code);
  EXPECT_EQ(runner::exactValue({"Object", 1}, arrayOfValues<ObjectPtr>({held, ObjectPtr{}}), 2),
            R"({"sizes":[2],"elements":[)" + code + ",null]}");
}

}  // namespace
}  // namespace vtlcmd::runner

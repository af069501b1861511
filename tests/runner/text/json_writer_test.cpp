#include "text/json_writer.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace vtlcmd::runner {
namespace {

template <typename T>
std::string numberText(T value) {
  JsonWriter json;
  json.number(value);
  return json.json();
}

TEST(JsonWriter, CommasStandBetweenValuesAlone) {
  JsonWriter json;
  json.open('{');
  json.key("a,[");
  json.open('[');
  json.number(1);
  json.text("{");
  json.open('[');
  json.close(']');
  json.null();
  json.close(']');
  json.key("b");
  json.open('{');
  json.close('}');
  json.key("c");
  json.boolean(true);
  json.close('}');
  EXPECT_EQ(json.json(), R"({"a,[":[1,"{",[],null],"b":{},"c":true})");
}

TEST(JsonWriter, TextsAreEscaped) {
  JsonWriter json;
  json.text(std::string("\"\\\n\x01\0é\xff", 8));
  EXPECT_EQ(json.json(), "\"\\\"\\\\\\n\\u0001\\u0000é\xEF\xBF\xBD\"");
}

TEST(JsonWriter, IntegersKeepAllBits) {
  EXPECT_EQ(numberText(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
  EXPECT_EQ(numberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(JsonWriter, FloatingTextsAreTheShortestOfTheirType) {
  EXPECT_EQ(numberText(0.1F), "0.1");
  EXPECT_EQ(numberText(0.1), "0.1");
  EXPECT_EQ(numberText(double{0.1F}), "0.10000000149011612");
  EXPECT_EQ(numberText(16777216.0F), "16777216");
  EXPECT_EQ(numberText(-0.0), "-0.0");
  EXPECT_EQ(numberText(5e-324), "5e-324");
}

TEST(JsonWriter, WhatIsNotFiniteIsAText) {
  EXPECT_EQ(numberText(std::numeric_limits<float>::quiet_NaN()), "\"nan\"");
  EXPECT_EQ(numberText(-std::numeric_limits<double>::quiet_NaN()), "\"nan\"");
  EXPECT_EQ(numberText(std::numeric_limits<double>::infinity()), "\"inf\"");
  EXPECT_EQ(numberText(-std::numeric_limits<float>::infinity()), "\"-inf\"");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "vtlcmd/input/number_parsing.h"

#include <bit>
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace vtlcmd {
namespace {

constexpr auto ok = ParseStatus::ParseOk;
constexpr auto trailing = ParseStatus::ParseTrailingText;
constexpr auto none = ParseStatus::ParseNoNumber;
constexpr auto range = ParseStatus::ParseOutOfRange;

struct Answer {
  ParseStatus status;
  long double value = 0;
};

/// One text, and what the cores of the four integer types and the floating ones answer.
struct NumberRow {
  const char* text;
  Answer signedInteger;
  Answer unsignedInteger;
  Answer floating;
};

const NumberRow numberRows[] = {
    {nullptr, {none}, {none}, {none}},
    {"", {none}, {none}, {none}},
    {"   ", {none}, {none}, {none}},
    {"12", {ok, 12}, {ok, 12}, {ok, 12}},
    {" 12 ", {ok, 12}, {ok, 12}, {ok, 12}},
    {"\t\n\v\f\r 12\t\n\v\f\r ", {ok, 12}, {ok, 12}, {ok, 12}},
    {"+1", {ok, 1}, {ok, 1}, {ok, 1}},
    {"-1", {ok, -1}, {range}, {ok, -1}},
    {"-0", {ok, 0}, {range}, {ok, -0.0L}},
    {" -0", {ok, 0}, {range}, {ok, -0.0L}},
    {"-", {none}, {range}, {none}},
    {"+", {none}, {none}, {none}},
    {"+-1", {none}, {none}, {none}},
    {"--1", {none}, {range}, {none}},
    {"+ 1", {none}, {none}, {none}},
    {"- 1", {none}, {range}, {none}},
    {"010", {ok, 10}, {ok, 10}, {ok, 10}},
    {"0x10", {trailing, 0}, {trailing, 0}, {ok, 16}},
    {"0x", {trailing, 0}, {trailing, 0}, {trailing, 0}},
    {"0X1.8p1", {trailing, 0}, {trailing, 0}, {ok, 3}},
    {"0x1p+-1", {trailing, 0}, {trailing, 0}, {trailing, 1}},
    {"0x.p1", {trailing, 0}, {trailing, 0}, {trailing, 0}},
    {"1e3", {trailing, 1}, {trailing, 1}, {ok, 1000}},
    {"1e", {trailing, 1}, {trailing, 1}, {trailing, 1}},
    {"1.5", {trailing, 1}, {trailing, 1}, {ok, 1.5}},
    {"1.", {trailing, 1}, {trailing, 1}, {ok, 1}},
    {".5", {none}, {none}, {ok, 0.5}},
    {"-.5", {none}, {range}, {ok, -0.5}},
    {".", {none}, {none}, {none}},
    {"1,5", {trailing, 1}, {trailing, 1}, {trailing, 1}},
    {"12 34", {trailing, 12}, {trailing, 12}, {trailing, 12}},
    {"12abc", {trailing, 12}, {trailing, 12}, {trailing, 12}},
    {"12\xa0", {trailing, 12}, {trailing, 12}, {trailing, 12}},
    {"\xa0", {none}, {none}, {none}},
    {"abc", {none}, {none}, {none}},
    {"inf", {none}, {none}, {none}},
    {"-Infinity", {none}, {range}, {none}},
    {"nan", {none}, {none}, {none}},
    {"NAN(1)", {none}, {none}, {none}},
    // More digits than fit into an integer.
    {"nan(1844674407370955161512)", {none}, {none}, {none}},
    {"infx", {none}, {none}, {none}},
    {"true", {none}, {none}, {none}},
    {"1e999", {trailing, 1}, {trailing, 1}, {range}},
    {"-1e999", {trailing, -1}, {range}, {range}},
    {"1e-999", {trailing, 1}, {trailing, 1}, {range}},
    {"0e999", {trailing, 0}, {trailing, 0}, {ok, 0}},
    {"99999999999999999999x", {range}, {range}, {trailing, 99999999999999999999.0L}},
};

template <typename T>
void expectAnswer(const char* text, const Answer& expected) {
  // Filled with what no call may leave behind.
  auto status = static_cast<ParseStatus>(-1);
  const std::optional<T> value = parseNumber<T>(text, status);
  EXPECT_EQ(status, expected.status) << ::testing::PrintToString(text);
  EXPECT_EQ(value.has_value(), status == ok || status == trailing);
  if (value.has_value()) {
    EXPECT_EQ(*value, static_cast<T>(expected.value)) << text;
    if constexpr (std::is_floating_point_v<T>) {
      EXPECT_EQ(std::signbit(*value), std::signbit(expected.value)) << text;
    }
  }
}

TEST(ParseNumber, AnswersEveryTextForEveryType) {
  for (const NumberRow& row : numberRows) {
    expectAnswer<std::int32_t>(row.text, row.signedInteger);
    expectAnswer<std::int64_t>(row.text, row.signedInteger);
    expectAnswer<std::uint32_t>(row.text, row.unsignedInteger);
    expectAnswer<std::uint64_t>(row.text, row.unsignedInteger);
    expectAnswer<float>(row.text, row.floating);
    expectAnswer<double>(row.text, row.floating);
  }
}

TEST(ParseNumber, IntegerLimits) {
  expectAnswer<std::int32_t>("2147483647", {ok, 2147483647});
  expectAnswer<std::int32_t>("-2147483648", {ok, -2147483648.0L});
  expectAnswer<std::int32_t>("2147483648", {range});
  expectAnswer<std::int32_t>("-2147483649", {range});
  expectAnswer<std::int32_t>("9223372036854775808", {range});
  expectAnswer<std::uint32_t>("4294967295", {ok, 4294967295});
  expectAnswer<std::uint32_t>("4294967296", {range});
  expectAnswer<std::uint32_t>("18446744073709551616", {range});
  expectAnswer<std::int64_t>("9223372036854775807", {ok, 9223372036854775807});
  expectAnswer<std::int64_t>("-9223372036854775808", {ok, -9223372036854775808.0L});
  expectAnswer<std::int64_t>("9223372036854775808", {range});
  expectAnswer<std::int64_t>("-9223372036854775809", {range});
  expectAnswer<std::uint64_t>("18446744073709551615", {ok, 18446744073709551615.0L});
  expectAnswer<std::uint64_t>("18446744073709551616", {range});
}

TEST(ParseNumber, FloatLimitsHoldOnTheDouble) {
  expectAnswer<float>("3.4028234663852886e+38", {ok, FLT_MAX});
  expectAnswer<float>("-3.4028234663852886e+38", {ok, -FLT_MAX});
  expectAnswer<float>("3.4028235e+38", {range});
  expectAnswer<float>("-3.4028235e+38", {range});
  expectAnswer<float>("1e39", {range});
  expectAnswer<float>("1.1754943508222875e-38", {ok, FLT_MIN});
  expectAnswer<float>("-1.1754943508222875e-38", {ok, -FLT_MIN});
  expectAnswer<float>("1.1754943508222873e-38", {range});
  expectAnswer<float>("1e-40", {range});
  expectAnswer<float>("0x1p-149", {range});
  expectAnswer<double>("1e-40", {ok, 1e-40});
  expectAnswer<double>("3.4028235e+38", {ok, 3.4028235e+38});
}

TEST(ParseNumber, DoubleLimits) {
  expectAnswer<double>("1e308", {ok, 1e308});
  expectAnswer<double>("1.7976931348623157e+308", {ok, DBL_MAX});
  expectAnswer<double>("-1.7976931348623157e+308", {ok, -DBL_MAX});
  expectAnswer<double>("1.7976931348623159e+308", {range});
  expectAnswer<double>("1e309", {range});
  expectAnswer<double>("2.2250738585072014e-308", {ok, DBL_MIN});
  expectAnswer<double>("2.2250738585072009e-308", {range});
  expectAnswer<double>("1e-310", {range});
  expectAnswer<double>("0x1p-1074", {range}) /* exact, so the library reports no underflow */;
  expectAnswer<double>("0", {ok, 0});
  expectAnswer<double>("-0", {ok, -0.0L});
}

TEST(ParseNumber, TextsJustBelowAPowerOfTwoRoundOnce) {
  expectAnswer<double>("1.17549435082228744271569185723700e-38", {ok, 0x0.fffffffffffff8p-126});
  expectAnswer<double>("2.2250738585072011e-308", {range});
}

TEST(ParseNumber, WhatRoundsUpToTheSmallestNormalPasses) {
  expectAnswer<double>("2.22507385850720138e-308", {ok, DBL_MIN});
  expectAnswer<double>("-2.22507385850720138e-308", {ok, -DBL_MIN});
  expectAnswer<double>("0x0.fffffffffffff8p-1022", {ok, DBL_MIN});
  expectAnswer<double>("0x0.fffffffffffff7p-1022", {range});
  expectAnswer<double>("2.225073858507201136e-308", {range});
}

TEST(ParseNumber, FloatRoundsTheDoubleToNearest) {
  ParseStatus status;
  EXPECT_EQ(std::bit_cast<std::uint32_t>(*parseNumber<float>("0.1", status)), 0x3DCCCCCDU);
  // The text lies above the tie of two floats by less than a double tells: it narrows as the tie.
  EXPECT_EQ(parseNumber<float>("1.00000005960464477539062500000001", status), 1.0F);
}

TEST(ParseNumber, LongTextsAreReadWhole) {
  const std::string zeros(5000, '0');
  expectAnswer<std::int32_t>((zeros + "7").c_str(), {ok, 7});
  expectAnswer<std::uint64_t>(("1" + zeros).c_str(), {range});
  expectAnswer<double>(("0." + zeros + "1e5001").c_str(), {ok, 1});
  expectAnswer<double>(("1" + zeros).c_str(), {range});
}

TEST(ParseNumber, StatusNumbersAreTheContracts) {
  EXPECT_EQ(static_cast<int>(ok), 0);
  EXPECT_EQ(static_cast<int>(trailing), 1);
  EXPECT_EQ(static_cast<int>(none), 2);
  EXPECT_EQ(static_cast<int>(range), 3);
}

}  // namespace
}  // namespace vtlcmd

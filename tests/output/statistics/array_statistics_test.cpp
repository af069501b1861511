#include "vtlcmd/output/statistics/array_statistics.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "support/allocation_count.h"
#include "support/built_text.h"
#include "support/scoped_locale.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/output/statistics/average.h"

namespace vtlcmd {
namespace {

using std::int16_t;
using std::int32_t;
using std::int64_t;
using std::uint16_t;
using std::uint32_t;
using std::uint64_t;

template <typename T>
std::string statistics(const std::vector<T>& elements) {
  return testing::builtText(
      [&](TextBuilder& text) { printArrayStatistics(text, *testing::arrayOf<T>(elements)); });
}

std::string block(const std::string& head, const std::string& minimum, const std::string& maximum,
                  const std::string& average) {
  return head + "\n  {\n     min: " + minimum + "\n     max: " + maximum +
         "\n     avg: " + average + "\n  }";
}

TEST(ArrayStatistics, Floats) {
  EXPECT_EQ(statistics<float>({1.5F, 2.5F, 4}),
            "(3 float)\n"
            "  {\n"
            "     min: 1.5\n"
            "     max: 4\n"
            "     avg: 2.66667\n"
            "  }");
}

TEST(ArrayStatistics, FloatVectors) {
  EXPECT_EQ(statistics<Math::float3>({{{1, 4, 3}}, {{2, 0.5F, 3}}}),
            "(2 Math::float3)\n"
            "  {\n"
            "     min: {1f, 0.5f, 3f}\n"
            "     max: {2f, 4f, 3f}\n"
            "     avg: {1.5f, 2.25f, 3f}\n"
            "  }");
  EXPECT_EQ(statistics<Math::float2>({{{1, 2.5F}}}),
            block("(1 Math::float2)", "{1f, 2.5f}", "{1f, 2.5f}", "{1f, 2.5f}"));
  EXPECT_EQ(statistics<Math::float4>({{{1, 2, 3, 4}}, {{0, 3, 2, 1e7F}}}),
            block("(2 Math::float4)", "{0f, 2f, 2f, 4f}", "{1f, 3f, 3f, 1e+07f}",
                  "{0.5f, 2.5f, 2.5f, 5e+06f}"));
}

TEST(ArrayStatistics, BoolsHaveABlankInFrontAndAnAverageOfTheirOwn) {
  EXPECT_EQ(statistics<bool>({true, false, true}),
            " (3 bool)\n"
            "  {\n"
            "     min: 0\n"
            "     max: 1\n"
            "     avg: 0\n"
            "  }");
  EXPECT_EQ(statistics<bool>({true}), block(" (1 bool)", "1", "1", "0"));
  EXPECT_EQ(statistics<bool>({false, true, true}), block(" (3 bool)", "0", "1", "1"));
  EXPECT_EQ(statistics<bool>({true, true, false}), block(" (3 bool)", "0", "1", "0"));
  EXPECT_EQ(statistics<bool>({true, true, true}), block(" (3 bool)", "1", "1", "1"));
  EXPECT_EQ(statistics<bool>({true, true}), block(" (2 bool)", "1", "1", "0"));
  EXPECT_EQ(statistics<bool>({false, true, true, false}), block(" (4 bool)", "0", "1", "0"));
  EXPECT_EQ(statistics<bool>({false, true, true, true}), block(" (4 bool)", "0", "1", "1"));
}

TEST(ArrayStatistics, AnyByteOfABoolArrayButZeroIsTrue) {
  Orvel::Array<bool> array;
  for (int i = 0; i < 3; ++i) array.append(false);
  auto* bytes = reinterpret_cast<unsigned char*>(array.data);
  bytes[0] = 2;
  bytes[1] = 255;
  bytes[2] = 128;
  const std::string text =
      testing::builtText([&](TextBuilder& built) { printArrayStatistics(built, array); });
  EXPECT_EQ(text, block(" (3 bool)", "1", "1", "1"));
}

TEST(ArrayStatistics, IntegerAveragesTruncateTowardZero) {
  EXPECT_EQ(statistics<int32_t>({1, 2}), block("(2 int)", "1", "2", "1"));
  EXPECT_EQ(statistics<int32_t>({-1, -2}), block("(2 int)", "-2", "-1", "-1"));
  EXPECT_EQ(statistics<uint32_t>({1, 2}), block("(2 uint)", "1", "2", "1"));
  EXPECT_EQ(statistics<int64_t>({-1, -2}), block("(2 long)", "-2", "-1", "-1"));
  EXPECT_EQ(statistics<uint64_t>({1, 2}), block("(2 ulong)", "1", "2", "1"));
  EXPECT_EQ(statistics<int16_t>({-1, -2}), block("(2 short)", "-2", "-1", "-1"));
  EXPECT_EQ(statistics<uint16_t>({1, 2}), block("(2 ushort)", "1", "2", "1"));
}

TEST(ArrayStatistics, AveragesAreQuotientsNotProductsWithAReciprocal) {
  for (std::size_t count = 1; count <= 100; ++count)
    EXPECT_EQ(statistics(std::vector<int32_t>(count, 1)),
              block("(" + std::to_string(count) + " int)", "1", "1", "1"));
}

TEST(ArrayStatistics, IntegerSumsWrap) {
  EXPECT_EQ(statistics<int32_t>({2147483647, 1}),
            block("(2 int)", "1", "2147483647", "-1073741824"));
  EXPECT_EQ(statistics<uint32_t>({4294967295, 1}), block("(2 uint)", "1", "4294967295", "0"));
  EXPECT_EQ(statistics<int64_t>({9223372036854775807, 1}),
            block("(2 long)", "1", "9223372036854775807", "-4611686018427387904"));
  EXPECT_EQ(statistics<uint64_t>({18446744073709551615U, 1}),
            block("(2 ulong)", "1", "18446744073709551615", "0"));
  EXPECT_EQ(statistics<int16_t>({32767, 1}), block("(2 short)", "1", "32767", "-16384"));
  EXPECT_EQ(statistics<uint16_t>({65535, 1}), block("(2 ushort)", "1", "65535", "0"));
}

TEST(ArrayStatistics, IntegerSumsPassThroughSinglePrecision) {
  EXPECT_EQ(statistics<int32_t>({16777217, 16777217}),
            block("(2 int)", "16777217", "16777217", "16777216"));
  // Rounded to double precision first, this would round up.
  EXPECT_EQ(statistics<int64_t>({4611686293305294849}),
            block("(1 long)", "4611686293305294849", "4611686293305294849", "4611686568183201792"));
}

TEST(ArrayStatistics, ConversionsThatOverflowGiveTheReferenceResults) {
  EXPECT_EQ(statistics<int32_t>({2147483647}),
            block("(1 int)", "2147483647", "2147483647", "-2147483648"));
  EXPECT_EQ(statistics<uint32_t>({4294967295}), block("(1 uint)", "4294967295", "4294967295", "0"));
  EXPECT_EQ(
      statistics<int64_t>({9223372036854775807}),
      block("(1 long)", "9223372036854775807", "9223372036854775807", "-9223372036854775808"));
  EXPECT_EQ(
      statistics<uint64_t>({18446744073709551615U}),
      block("(1 ulong)", "18446744073709551615", "18446744073709551615", "9223372036854775808"));
  EXPECT_EQ(
      statistics<uint64_t>({13835058055282163712U}),
      block("(1 ulong)", "13835058055282163712", "13835058055282163712", "13835058055282163712"));
}

TEST(ArrayStatistics, DoublesSumAndDivideInDoublePrecision) {
  EXPECT_EQ(statistics<double>({16777217, 16777217}),
            block("(2 double)", "1.67772e+07", "1.67772e+07", "1.67772e+07"));
  EXPECT_EQ(statistics<double>({1e300, 1e300}), block("(2 double)", "1e+300", "1e+300", "1e+300"));
  EXPECT_EQ(statistics<double>({0.1, 0.2, 0.3}), block("(3 double)", "0.1", "0.3", "0.2"));
}

TEST(ArrayStatistics, CountOfDoublesIsNotRoundedToSinglePrecision) {
  EXPECT_EQ(averageOf(16777217.0, 16777217), 1.0);
  EXPECT_EQ(averageOf(16777217.0F, 16777217), 1.0F);
}

TEST(ArrayStatistics, NumbersFollowTheGlobalLocale) {
  const testing::GroupingLocale locale;
  EXPECT_EQ(statistics<int32_t>({1234567, 1234569}),
            block("(2 int)", "1.234.567", "1.234.569", "1.234.568"));
  EXPECT_EQ(statistics<float>({1.5F, 2.5F}), block("(2 float)", "1,5", "2,5", "2"));
  EXPECT_EQ(statistics(std::vector<bool>(1000)), block(" (1.000 bool)", "0", "0", "0"));
}

TEST(ArrayStatistics, FloatSumsRoundAtEveryStep) {
  std::vector<float> elements(1001, 1.0F);
  elements[0] = 16777216;
  EXPECT_EQ(statistics(elements), block("(1001 float)", "1", "1.67772e+07", "16760.5"))
      << "no one adds anything to 2 to the 24th";
  EXPECT_EQ(statistics<float>({3e38F, 3e38F}), block("(2 float)", "3e+38", "3e+38", "inf"));
}

TEST(ArrayStatistics, FirstOfTwoZerosStays) {
  EXPECT_EQ(statistics<float>({0.0F, -0.0F}), block("(2 float)", "0", "0", "0"));
  EXPECT_EQ(statistics<float>({-0.0F, 0.0F}), block("(2 float)", "-0", "-0", "0"));
  EXPECT_EQ(statistics<double>({-0.0, -0.0}), block("(2 double)", "-0", "-0", "-0"));
}

TEST(ArrayStatistics, NanFirstStaysAndNanLaterIsPassedOver) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinity = std::numeric_limits<float>::infinity();
  EXPECT_EQ(statistics<float>({nan, 1, 2}), block("(3 float)", "nan", "nan", "nan"));
  EXPECT_EQ(statistics<float>({1, nan, 2}), block("(3 float)", "1", "2", "nan"));
  EXPECT_EQ(statistics<double>({1, nan, -infinity}), block("(3 double)", "-inf", "1", "nan"));
  EXPECT_EQ(statistics<Math::float2>({{{nan, 1}}, {{3, 2}}}),
            block("(2 Math::float2)", "{nanf, 1f}", "{nanf, 2f}", "{nanf, 1.5f}"));
}

template <typename T>
class SummarisedType : public ::testing::Test {};
TYPE_TEST_SUITE(SummarisedType, testing::SummarisedTestTypes);

TYPE_TEST(SummarisedType, EmptyArraySaysSoOnOneLine) {
  const std::string blank = std::is_same_v<TypeParam, bool> ? " " : "";
  EXPECT_EQ(statistics<TypeParam>({}),
            blank + "(0 " + valueType<TypeParam>().name + ")\n  {\nempty array...  }");
}

TYPE_TEST(SummarisedType, NamedBlockIsALineOfTheObjectReport) {
  TextBuilder text(0);
  const auto array = testing::arrayOf<TypeParam>({TypeParam{}});
  EXPECT_TRUE(printNamedArrayStatistics(text, "name", *array));
  EXPECT_EQ(text.text(), "  name: " + statistics<TypeParam>({TypeParam{}}) + "\n");
}

TYPE_TEST(SummarisedType, SummariesAllocateNothing) {
  const auto array = testing::arrayOf<TypeParam>(std::vector<TypeParam>(1000));
  TextBuilder text(1000);
  const std::size_t before = testing::allocationCount();
  printArrayStatistics(text, *array);
  EXPECT_EQ(testing::allocationCount(), before);
  EXPECT_EQ(Orvel::useCount(array), 1U);
}

}  // namespace
}  // namespace vtlcmd

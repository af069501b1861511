#include "vtlcmd/output/value_text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "support/built_text.h"
#include "support/text_room.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/stand_in/make_string.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd {
namespace {

using testing::builtText;
using testing::rowOf;
using testing::sampleValue;

template <typename T>
std::string textOfAny(const Any* any) {
  return builtText([&](TextBuilder& text) { anyToText<T>(text, any); });
}

template <typename T>
std::string textOfValue(const Orvel::Value& value) {
  return builtText([&](TextBuilder& text) { valueToText<T>(text, value); });
}

std::string textOfStruct(const Orvel::Value& value) {
  return builtText([&](TextBuilder& text) { structValueToText(text, value); });
}

template <typename T>
class ValueText : public ::testing::Test {};
TYPE_TEST_SUITE(ValueText, testing::RegisteredTestTypes);

TYPE_TEST(ValueText, ReadsAlikeFromAnyAndFromValue) {
  for (const std::size_t which : {0U, 1U}) {
    const TypeParam value = sampleValue<TypeParam>(which);
    const Any any = makeAny(value);
    const char* report = rowOf<TypeParam>().samples[which].report;
    EXPECT_EQ(textOfAny<TypeParam>(&any), report);
    EXPECT_EQ(textOfValue<TypeParam>(Orvel::makeValue(value)), report);
  }
}

TYPE_TEST(ValueText, AnyRoomWillDo) {
  const auto value = sampleValue<TypeParam>(0);
  const Any any = makeAny(value);
  const Orvel::Value libraryValue = Orvel::makeValue(value);
  testing::expectAnyRoomWillDo([&](TextBuilder& text) { anyToText<TypeParam>(text, &any); });
  testing::expectAnyRoomWillDo([](TextBuilder& text) { anyToText<TypeParam>(text, nullptr); });
  testing::expectAnyRoomWillDo(
      [&](TextBuilder& text) { valueToText<TypeParam>(text, libraryValue); });
}

TYPE_TEST(ValueText, WithoutAValueTheZeroStandsIn) {
  const Any empty;
  const Any foreign = makeAny(testing::nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0)));
  for (const Any* any : {static_cast<const Any*>(nullptr), &empty, &foreign}) {
    EXPECT_EQ(textOfAny<TypeParam>(any), rowOf<TypeParam>().zeroReport);
  }
}

template <typename T>
std::string read(T value) {
  const Any any = makeAny(value);
  EXPECT_EQ(textOfValue<T>(Orvel::makeValue(value)), textOfAny<T>(&any));
  return textOfAny<T>(&any);
}

template <typename T>
class FloatingText : public ::testing::Test {};
TYPE_TEST_SUITE(FloatingText, testing::TestTypesWhere<std::is_floating_point>);

TYPE_TEST(FloatingText, IsTheGeneralFormatAtPrecision6) {
  using T = TypeParam;
  EXPECT_EQ(read(T(1.0)), "1");
  EXPECT_EQ(read(T(2.5)), "2.5");
  EXPECT_EQ(read(T(8) / T(3)), "2.66667");
  EXPECT_EQ(read(T(0.1)), "0.1");
  EXPECT_EQ(read(T(3.14159265358979)), "3.14159");
  EXPECT_EQ(read(T(100000)), "100000");
  EXPECT_EQ(read(T(999999)), "999999");
  EXPECT_EQ(read(T(1000000)), "1e+06");
  EXPECT_EQ(read(T(1234567)), "1.23457e+06");
  EXPECT_EQ(read(T(0.0001)), "0.0001");
  EXPECT_EQ(read(T(0.00001)), "1e-05");
  EXPECT_EQ(read(T(-0.0)), "-0");
  EXPECT_EQ(read(std::numeric_limits<T>::infinity()), "inf");
  EXPECT_EQ(read(-std::numeric_limits<T>::infinity()), "-inf");
  EXPECT_EQ(read(std::numeric_limits<T>::quiet_NaN()), "nan");
}

TEST(ValueTextOfNumbers, IntegersReadInFull) {
  EXPECT_EQ(read(std::uint64_t{18446744073709551615U}), "18446744073709551615");
  EXPECT_EQ(read(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(read(std::numeric_limits<std::int32_t>::min()), "-2147483648");
  EXPECT_EQ(read(std::uint32_t{4294967295}), "4294967295");
}

TEST(ValueTextOfVectors, ComponentsHaveNoSuffix) {
  EXPECT_EQ(read(Math::float3{{1, 2, 3}}), "{1, 2, 3}");
  EXPECT_EQ(read(Math::float3{{0.5F, 1000000, 0}}), "{0.5, 1e+06, 0}");
  EXPECT_EQ(read(Math::double4{{1, -0.0, 1e-5, 1e300}}), "{1, -0, 1e-05, 1e+300}");
}

TEST(ValueTextOfStrings, NothingIsEscapedAndTheFirstNulEndsIt) {
  EXPECT_EQ(read(Orvel::String("a\"b\nc")), "\"a\"b\nc\"");
  EXPECT_EQ(read(Orvel::String("")), "\"\"");
  EXPECT_EQ(read(Orvel::makeString({"a\0b", 3})), "\"a\"");
}

Orvel::Value makeStructOf(const std::vector<Orvel::Value>& members) {
  std::vector<Orvel::MemberSpec> specs;
  for (const Orvel::Value& member : members) {
    specs.push_back({("m" + std::to_string(specs.size())).c_str(), member.getType()});
  }
  const Orvel::String name = "Foreign";
  return Orvel::makeStruct(Orvel::makeStructType(name, specs), members);
}

TEST(StructValueToText, WritesMembersByTheirOwnType) {
  EXPECT_EQ(textOfStruct(makeStructOf({})), "{}");
  EXPECT_EQ(textOfStruct(makeStructOf(
                {Orvel::makeValue(1.5F), Orvel::makeValue(2.25), Orvel::makeValue(-3)})),
            "{1.5, 2.25, -3}");
}

TEST(StructValueToText, OtherMembersLeaveTheSeparatorBeforeThem) {
  const Orvel::Value other = Orvel::makeValue(Orvel::String("text"));
  const Orvel::Value number = Orvel::makeValue(1.5F);
  EXPECT_EQ(textOfStruct(makeStructOf({number, other})), "{1.5, }");
  EXPECT_EQ(textOfStruct(makeStructOf({other, number})), "{1.5}");
  EXPECT_EQ(textOfStruct(makeStructOf({number, other, number})), "{1.5, 1.5}");
  EXPECT_EQ(textOfStruct(makeStructOf({other})), "{}");
  EXPECT_EQ(textOfStruct(makeStructOf({number, Orvel::makeValue(std::uint32_t{7})})), "{1.5, }");
}

}  // namespace
}  // namespace vtlcmd

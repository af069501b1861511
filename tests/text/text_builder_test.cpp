#include "vtlcmd/text/text_builder.h"

#include <cfenv>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <locale>
#include <memory>
#include <new>
#include <sstream>
#include <string>

#include "support/allocation_count.h"
#include "support/built_text.h"
#include "support/floating_environment.h"
#include "support/scoped_locale.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

template <TextNumber Number>
std::string read(Number number) {
  return testing::builtText([=](TextBuilder& text) { text << number; });
}

TEST(TextBuilder, PiecesFollowEachOther) {
  TextBuilder text(3);
  EXPECT_EQ(text.text(), "");
  text << "(" << std::uint64_t{3} << " out of " << std::string(100, 'x') << ")";
  EXPECT_EQ(text.text(), "(3 out of " + std::string(100, 'x') + ")");
}

TEST(TextBuilder, TextSoFarCanBeReadBetweenPieces) {
  TextBuilder text(0);
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    text << "piece " << i << ";";
    expected += "piece " + std::to_string(i) + ";";
    EXPECT_EQ(text.size(), expected.size());
    if (i % 7 == 0) {
      EXPECT_EQ(text.text(), expected);
    }
  }
  EXPECT_EQ(text.text(), expected);
}

TEST(TextBuilder, IntegersReadInFullAndBoolsAsDigits) {
  EXPECT_EQ(read(true), "1");
  EXPECT_EQ(read(false), "0");
  EXPECT_EQ(read(std::numeric_limits<std::int16_t>::min()), "-32768");
  EXPECT_EQ(read(std::numeric_limits<std::uint16_t>::max()), "65535");
  EXPECT_EQ(read(std::numeric_limits<std::int32_t>::min()), "-2147483648");
  EXPECT_EQ(read(std::numeric_limits<std::uint32_t>::max()), "4294967295");
  EXPECT_EQ(read(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(read(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(TextBuilder, FloatingNumbersReadWithSixDigits) {
  EXPECT_EQ(read(0.1F), "0.1");
  EXPECT_EQ(read(1234567.0), "1.23457e+06");
  EXPECT_EQ(read(-1.2345678e-300), "-1.23457e-300");
  EXPECT_EQ(read(-0.0), "-0");
  EXPECT_EQ(read(-std::numeric_limits<float>::infinity()), "-inf");
  EXPECT_EQ(read(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(TextBuilder, SignOfNanReadsAsThePlatformsStreamsWriteIt) {
  std::ostringstream stream;
  stream << -std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(read(-std::numeric_limits<float>::quiet_NaN()), stream.str());
}

TEST(TextBuilder, GlobalLocaleOfTheFirstNumberApplies) {
  TextBuilder before(0);
  before << 1.5 << " ";
  TextBuilder unasked(0);
  unasked << "= ";
  {
    const testing::GroupingLocale locale;
    before << 2.5;
    unasked << 2.5 << " " << 1234567;
    EXPECT_EQ(read(std::uint64_t{1234567}), "1.234.567");
    EXPECT_EQ(read(std::int16_t{-12345}), "-12.345");
    EXPECT_EQ(read(2.5), "2,5");
    EXPECT_EQ(read(123456.0F), "123.456");
    EXPECT_EQ(read(true), "1");
  }
  EXPECT_EQ(before.text(), "1.5 2.5");
  EXPECT_EQ(unasked.text(), "= 2,5 1.234.567");
  EXPECT_EQ(read(1234567), "1234567");
}

#if !defined(_WIN32)  // whose C library prints alike in all modes
TEST(TextBuilder, RoundingModeApplies) {
  constexpr double justAbove = 1.0000011;
  EXPECT_EQ(read(justAbove), "1");
  {
    const testing::FloatingEnvironment upward(FE_UPWARD, false);
    EXPECT_EQ(read(justAbove), "1.00001");
    EXPECT_EQ(read(static_cast<float>(justAbove)), "1.00001");
    EXPECT_EQ(read(-justAbove), "-1");
  }
  const testing::FloatingEnvironment downward(FE_DOWNWARD, false);
  EXPECT_EQ(read(-justAbove), "-1.00001");
}
#endif

/// Writes any number as one mark, so that whether it was asked can be seen of each.
class Marks : public std::num_put<char> {
  using std::num_put<char>::do_put;
  iter_type do_put(iter_type out, std::ios_base&, char, bool) const override { return mark(out); }
  iter_type do_put(iter_type out, std::ios_base&, char, long) const override { return mark(out); }
  iter_type do_put(iter_type out, std::ios_base&, char, unsigned long) const override {
    return mark(out);
  }
  iter_type do_put(iter_type out, std::ios_base&, char, long long) const override {
    return mark(out);
  }
  iter_type do_put(iter_type out, std::ios_base&, char, unsigned long long) const override {
    return mark(out);
  }
  iter_type do_put(iter_type out, std::ios_base&, char, double) const override { return mark(out); }
  static iter_type mark(iter_type out) {
    *out = '#';
    return ++out;
  }
};

template <typename Number>
class TextBuilderOf : public ::testing::Test {
 protected:
  ~TextBuilderOf() override { std::locale::global(before_); }

  static void setMarks() { std::locale::global(std::locale(std::locale::classic(), new Marks)); }

 private:
  std::locale before_;
};

using Numbers = ::testing::Types<bool, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                                 std::int64_t, std::uint64_t, float, double>;
TYPE_TEST_SUITE(TextBuilderOf, Numbers);

TYPE_TEST(TextBuilderOf, EachNumberGoesByALocaleThatWasThereAtTheFirst) {
  this->setMarks();
  // Whatever stood in its place before.
  alignas(TextBuilder) unsigned char place[sizeof(TextBuilder)];
  std::memset(place, 0xFF, sizeof place);
  auto* text = new (place) TextBuilder(100);
  *text << TypeParam{1} << TypeParam{1};
  EXPECT_EQ(text->text(), "##");
  std::destroy_at(text);
}

TYPE_TEST(TextBuilderOf, ALocaleSetBehindTheFirstNumberDoesNotApply) {
  TextBuilder text(100);
  text << TypeParam{1};
  this->setMarks();
  text << TypeParam{1};
  EXPECT_EQ(text.text(), "11");
}

TYPE_TEST(TextBuilderOf, LongNumbersFitBehindAFullText) {
  constexpr TypeParam longest = std::numeric_limits<TypeParam>::lowest() < 0
                                    ? std::numeric_limits<TypeParam>::lowest()
                                    : std::numeric_limits<TypeParam>::max();
  for (std::size_t length = 0; length < 64; ++length) {
    for (std::size_t room = length; room < length + 24; ++room) {
      TextBuilder text(room);
      text << std::string(length, 'x') << longest << "y" << longest;
      EXPECT_EQ(text.text(), std::string(length, 'x') + read(longest) + "y" + read(longest));
    }
  }
}

TYPE_TEST(TextBuilderOf, RoomThatIsEnoughStaysUnderALocaleToo) {
  this->setMarks();
  TextBuilder text(100);
  text << TypeParam{1} << TypeParam{1};
  EXPECT_LT(text.text().capacity(), 200U);
}

TYPE_TEST(TextBuilderOf, NumbersTakeNoMemoryWhereThereIsRoom) {
  TextBuilder text(100);
  const std::size_t before = testing::allocationCount();
  text << TypeParam{1} << TypeParam{1};
  EXPECT_EQ(testing::allocationCount(), before);
}

}  // namespace
}  // namespace vtlcmd

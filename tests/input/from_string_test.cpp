#include "vtlcmd/input/from_string.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "support/test_host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/stand_in/make_string.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestHost;

template <typename T>
class FromString : public ::testing::Test {
 protected:
  std::optional<T> parse(const Orvel::String& text, const std::string& prefix = "prefix: ") {
    return fromString<T>(text, &logger_, prefix);
  }

  void expectRefused(const Orvel::String& text) {
    logger_.messages.clear();
    EXPECT_EQ(parse(text), std::nullopt);
    EXPECT_THAT(TestHost::messagesOf(logger_),
                ElementsAre("error prefix: Unable to convert '" + std::string(text.c_str()) +
                            testing::rowOf<T>().parseErrorEnd));
  }

  VtlCmdLogger logger_{10};
};
TYPE_TEST_SUITE(FromString, testing::ScalarTestTypes);

TYPE_TEST(FromString, RefusalIsOneMessageWithTheTextAsItStands) {
  for (const char* text : {"", "   ", " x ", "12 34", "12abc", "abc", "inf", "nan", "TRUE", "yes",
                           "'", "a\nb", "\xff\xfe", "1e999", " true", "true "}) {
    this->expectRefused(text);
  }
  EXPECT_EQ(this->logger_.errorCount, 0U);
}

TYPE_TEST(FromString, PrefixMayBeEmpty) {
  EXPECT_EQ(this->parse("x", ""), std::nullopt);
  EXPECT_THAT(TestHost::messagesOf(this->logger_),
              ElementsAre(std::string("error Unable to convert 'x") +
                          testing::rowOf<TypeParam>().parseErrorEnd));
}

TYPE_TEST(FromString, ValuesLeaveNoMessage) {
  if constexpr (std::is_same_v<TypeParam, bool>) {
    EXPECT_EQ(this->parse("true"), true);
    EXPECT_EQ(this->parse("false"), false);
  } else {
    EXPECT_EQ(this->parse("12"), TypeParam{12});
    EXPECT_EQ(this->parse(" 12 "), TypeParam{12});
    EXPECT_EQ(this->parse("+1"), TypeParam{1});
    EXPECT_EQ(this->parse("010"), TypeParam{10});
  }
  EXPECT_THAT(this->logger_.messages, IsEmpty());
}

TYPE_TEST(FromString, WordsAndNumbersAreNotMixed) {
  if constexpr (std::is_same_v<TypeParam, bool>) {
    for (const char* text :
         {"12", " 12 ", "+1", "-1", "-0", "010", "0x10", "1e3", "1.5", "1", "0", "True"}) {
      this->expectRefused(text);
    }
  } else {
    this->expectRefused("true");
    this->expectRefused("false");
  }
}

TYPE_TEST(FromString, SignsAndFormsByType) {
  using T = TypeParam;
  if constexpr (UnsignedNumber<T>) {
    for (const char* text : {"-1", "-0", " -1"}) this->expectRefused(text);
  } else if constexpr (!std::is_same_v<T, bool>) {
    EXPECT_EQ(this->parse("-1"), T(-1));
    EXPECT_EQ(this->parse("-0"), T(0));
  }
  if constexpr (FloatingNumber<T>) {
    EXPECT_EQ(this->parse("0x10"), T{16});
    EXPECT_EQ(this->parse("1e3"), T{1000});
    EXPECT_EQ(this->parse("1.5"), T(1.5));
    EXPECT_TRUE(std::signbit(*this->parse("-0")));
  } else {
    for (const char* text : {"0x10", "1e3", "1.5"}) this->expectRefused(text);
  }
}

TYPE_TEST(FromString, TextEndsAtItsFirstNul) {
  const Orvel::String text = Orvel::makeString({"12\0x", 4});
  if constexpr (std::is_same_v<TypeParam, bool>) {
    // Words compare whole: the text behind the NUL makes it another text.
    const Orvel::String word = Orvel::makeString({"true\0", 5});
    EXPECT_EQ(this->parse(word), std::nullopt);
    EXPECT_THAT(TestHost::messagesOf(this->logger_),
                ElementsAre("error prefix: Unable to convert 'true' to a bool value."));
  } else {
    EXPECT_EQ(this->parse(text), TypeParam{12});
  }
}

TEST(FromStringOfString, PassesEveryTextUnchanged) {
  for (const char* text : {"", " ", "a,b", "\"quoted\"", "12\n"}) {
    EXPECT_STREQ(fromString<Orvel::String>(text)->c_str(), text);
  }
}

}  // namespace
}  // namespace vtlcmd

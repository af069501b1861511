#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/test_host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/input/number_parsing.h"

namespace vtlcmd {
namespace {

using testing::sampleValue;
using testing::TestHost;

/// A text and its value text by kind of type; null where the text is refused.
struct Row {
  const char* text;
  const char* signedInteger;
  const char* unsignedInteger;
  const char* floating;
  const char* boolean;
};

constexpr const char* no = nullptr;

const Row rows[] = {
    {"", no, no, no, no},           {"   ", no, no, no, no},       {"12", "12", "12", "12", no},
    {" 12 ", "12", "12", "12", no}, {"+1", "1", "1", "1", no},     {"-1", "-1", no, "-1", no},
    {"-0", "0", no, "-0", no},      {"010", "10", "10", "10", no}, {"0x10", no, no, "16", no},
    {"1e3", no, no, "1000", no},    {"1.5", no, no, "1.5", no},    {"12 34", no, no, no, no},
    {"12abc", no, no, no, no},      {"abc", no, no, no, no},       {"inf", no, no, no, no},
    {"nan", no, no, no, no},        {"true", no, no, no, "true"},  {"false", no, no, no, "false"},
    {"TRUE", no, no, no, no},       {"True", no, no, no, no},      {"1", "1", "1", "1", no},
    {"0", "0", "0", "0", no},       {"yes", no, no, no, no},       {" true", no, no, no, no},
};

template <typename T>
const char* answerOf(const Row& row) {
  if constexpr (std::is_same_v<T, bool>) {
    return row.boolean;
  } else if constexpr (FloatingNumber<T>) {
    return row.floating;
  } else {
    return SignedNumber<T> ? row.signedInteger : row.unsignedInteger;
  }
}

template <typename T>
class AcceptTable : public ::testing::Test {
 protected:
  /// One text on one port in one state, which the answer must not depend on.
  static void expectAnswer(const char* text, const char* report, bool isJobPort, const Any& before,
                           const Any& defaultValue) {
    TestHost host;
    (isJobPort ? host.jobValues : host.inputValues).insert("p", {"", text});
    Any value = before;
    const bool result = host.setInput(Orvel::typeOf<T>(), value, "p", isJobPort, defaultValue);
    const std::string name = valueType<T>().name;
    std::string message = "error " + std::string(isJobPort ? "Job" : "Input") + " port 'p' (" +
                          name + "): Unable to convert '" + text + "' to a" +
                          (name == "int" ? "n " : " ") + name + " value.";
    if (report != nullptr) {
      message = "verbose Set " + std::string(isJobPort ? "Job" : "input") + " port 'p': (" + name +
                ") " + report;
    }
    EXPECT_EQ(result, report != nullptr) << message;
    EXPECT_EQ(anyCast<T>(&value) != nullptr, result);
    EXPECT_EQ(value.holdsValue(), result);
    EXPECT_THAT(host.messages(), ::testing::ElementsAre(message));
  }
};
TYPE_TEST_SUITE(AcceptTable, testing::ScalarTestTypes);

TYPE_TEST(AcceptTable, HoldsOnEveryPortInEveryState) {
  using T = TypeParam;
  const Any own = makeAny(sampleValue<T>(1));
  const Any foreign = makeAny(Math::double4{});
  for (const Row& row : rows) {
    for (const bool isJobPort : {false, true}) {
      for (const Any& before : {Any{}, own, foreign}) {
        for (const Any& defaultValue : {Any{}, own, foreign}) {
          this->expectAnswer(row.text, answerOf<T>(row), isJobPort, before, defaultValue);
        }
      }
    }
  }
}

}  // namespace
}  // namespace vtlcmd

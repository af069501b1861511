#include <gtest/gtest.h>
#include <limits>

#include "runner/support/run_graph.h"

namespace vtlcmd::runner {
namespace {

std::string textOf(const std::string& constant) {
  return runOperation("text", {{"value", constant}}).single<Orvel::String>("result").c_str();
}

TEST(Text, IsTheShortestThatReadsBack) {
  EXPECT_EQ(textOf(R"("type": "float", "value": 0.1)"), "0.1");
  EXPECT_EQ(textOf(R"("type": "double", "value": 0.1)"), "0.1");
  EXPECT_EQ(textOf(R"("type": "double", "value": 3.141592653589793)"), "3.141592653589793");
  EXPECT_EQ(textOf(R"("type": "ulong", "value": 18446744073709551615)"), "18446744073709551615");
  EXPECT_EQ(textOf(R"("type": "int", "value": -5)"), "-5");
  EXPECT_EQ(textOf(R"("type": "bool", "value": true)"), "true");
  EXPECT_EQ(textOf(R"("type": "double", "value": -2.2250738585072014e-308)"),
            "-2.2250738585072014e-308");
}

TEST(Text, GoesByElement) {
  EXPECT_EQ(runOperation("text", {{"value", R"("type": "array<float>", "value": [0.1, 2])"}})
                .array<Orvel::String>("result"),
            (std::vector<Orvel::String>{"0.1", "2"}));
}

GraphResult numberFrom(const std::string& text, const std::string& type) {
  return runOperation("number", {{"text", R"("type": "string", "value": ")" + text + '"'}},
                      R"(, "type": ")" + type + '"');
}

TEST(Number, ReadsTheWholeText) {
  EXPECT_EQ(numberFrom("-2147483648", "int").single<std::int32_t>("result"), -2147483647 - 1);
  EXPECT_EQ(numberFrom("18446744073709551615", "ulong").single<std::uint64_t>("result"),
            18446744073709551615U);
  EXPECT_EQ(numberFrom("0.1", "float").single<float>("result"), 0.1F);
  EXPECT_EQ(numberFrom("5e-324", "double").single<double>("result"), 5e-324);
  EXPECT_EQ(numberFrom("-inf", "double").single<double>("result"),
            -std::numeric_limits<double>::infinity());
  EXPECT_EQ(numberFrom("true", "bool").single<bool>("result"), true);
  EXPECT_EQ(numberFrom("false", "bool").single<bool>("result"), false);
}

TEST(Number, RefusesEverythingElse) {
  for (const auto& [text, type] : {std::pair{"", "int"},
                                   {" 1", "int"},
                                   {"1 ", "int"},
                                   {"+1", "int"},
                                   {"1.5", "int"},
                                   {"0x10", "int"},
                                   {"-1", "uint"},
                                   {"1,5", "double"},
                                   {"1f", "float"},
                                   {"True", "bool"}}) {
    EXPECT_EQ(numberFrom(text, type).messages,
              (Messages{std::string("error: Node 'node' (number): '") + text +
                        "' doesn't read as " + type + "."}));
  }
  for (const auto& [text, type] : {std::pair{"2147483648", "int"},
                                   {"1e999", "double"},
                                   {"1e39", "float"},
                                   {"4294967296", "uint"}}) {
    EXPECT_EQ(numberFrom(text, type).messages,
              (Messages{std::string("error: Node 'node' (number): '") + text +
                        "' is out of range for " + type + "."}));
  }
}

TEST(Number, TellsWhichElementDoesntRead) {
  EXPECT_EQ(runOperation("number", {{"text", R"("type": "array<string>", "value": ["1", "x"])"}},
                         R"(, "type": "array<int>")")
                .messages,
            (std::vector<std::string>{
                "error: Node 'node' (number): at the index 1 'x' doesn't read as int."}));
}

TEST(Join, PutsTheSeparatorBetween) {
  const GraphResult result = runGraph(R"({
    "nodes": [
      {"name": "a", "op": "constant", "type": "string", "value": "a"},
      {"name": "comma", "op": "constant", "type": "string", "value": ", "},
      {"name": "three", "op": "join", "in": {"parts": ["a", "a", "a"], "separator": "comma"}},
      {"name": "one", "op": "join", "in": {"parts": ["a"], "separator": "comma"}}],
    "outputs": [{"name": "three", "from": "three"}, {"name": "one", "from": "one"}]})");
  EXPECT_STREQ(result.single<Orvel::String>("three").c_str(), "a, a, a");
  EXPECT_STREQ(result.single<Orvel::String>("one").c_str(), "a");
}

}  // namespace
}  // namespace vtlcmd::runner

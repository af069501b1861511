#include <gtest/gtest.h>

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

#include "command_line/default_text.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

std::optional<std::string> textOf(const std::string& type, const std::string& value) {
  const Graph graph = parseGraph(R"({"inputs": [{"name": "p", "type": ")" + type +
                                 R"(", "default": )" + value + "}]}");
  return defaultAsText(graph.ports.at(0));
}

TEST(DefaultText, IsWhatATextWouldBe) {
  EXPECT_EQ(textOf("int", "-5"), "-5");
  EXPECT_EQ(textOf("ulong", "18446744073709551615"), "18446744073709551615");
  EXPECT_EQ(textOf("float", "0.1"), "0.1");
  EXPECT_EQ(textOf("double", "-0.0"), "-0.0");
  EXPECT_EQ(textOf("bool", "true"), "true");
  EXPECT_EQ(textOf("string", R"("it's \"1\"")"), "it's \"1\"");
  EXPECT_EQ(textOf("string", "\"\""), "");
  EXPECT_EQ(textOf("Math::float3", "[1, 2.5, -3]"), "1,2.5,-3");
  EXPECT_EQ(textOf("Math::double2", "[1e300, 0]"), "1e+300,0");
}

TEST(DefaultText, StaysWithinItsTypeAtTheEdges) {
  EXPECT_EQ(textOf("float", "3.4028235e38"), "3.4028234663852886e+38");
  EXPECT_EQ(textOf("float", "1.17549435e-38"), "1.1754943508222875e-38");
}

TEST(DefaultText, SomeDefaultsHaveNone) {
  EXPECT_EQ(textOf("float", "\"nan\""), std::nullopt);
  EXPECT_EQ(textOf("double", "\"-inf\""), std::nullopt);
  EXPECT_EQ(textOf("float", "1e-40"), std::nullopt);
  EXPECT_EQ(textOf("double", "1e-310"), std::nullopt);
  EXPECT_EQ(textOf("Math::float2", R"([1, "inf"])"), std::nullopt);
  EXPECT_EQ(textOf("array<int>", "[1]"), std::nullopt);
  EXPECT_EQ(textOf("Object", "null"), std::nullopt);
}

TEST(DefaultText, NoDefaultHasNone) {
  const Graph graph = parseGraph(R"({"inputs": [{"name": "p", "type": "int"}]})");
  EXPECT_EQ(defaultAsText(graph.ports.at(0)), std::nullopt);
}

}  // namespace
}  // namespace vtlcmd::runner

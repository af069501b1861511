#include "command_line/vector_notation.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

/// The hint about a port `p` of the type, or an empty text.
std::string hintOn(const std::string& type, const std::string& text) {
  const Graph graph = parseGraph(R"({"inputs": [{"name": "p", "type": ")" + type + "\"}]}");
  const std::vector<std::string> hints = vectorNotationHints(graph, {text});
  return hints.empty() ? "" : hints.front();
}

TEST(VectorNotation, OtherNotationsAreTranslated) {
  const std::string hint =
      "input port 'p' (Math::float3): a vector is written as bare numbers: '1,2.5,-3'";
  for (const char* text : {"[1,2.5,-3]", "{1f, 2.5f, -3f}", "(1; 2.5; -3)", "1 2.5 -3",
                           "<1,2.5,-3>", "+1F,2.5,-3", "[1, 2.5, -3"})
    EXPECT_EQ(hintOn("Math::float3", text), hint) << text;
}

TEST(VectorNotation, JobPortsAreCalledThat) {
  const Graph graph = parseGraph(R"({"jobs": [{"name": "p", "type": "Math::double2"}]})");
  EXPECT_EQ(vectorNotationHints(graph, {"{1, 2}"}),
            (std::vector<std::string>{
                "Job port 'p' (Math::double2): a vector is written as bare numbers: '1,2'"}));
  EXPECT_TRUE(vectorNotationHints(graph, {std::nullopt}).empty());
}

TEST(VectorNotation, WhatIsTakenNeedsNoHint) {
  for (const char* text : {"1,2,3", " 1, 2 ,3 ", "1e3,0x10,-.5"})
    EXPECT_EQ(hintOn("Math::float3", text), "") << text;
}

TEST(VectorNotation, WhatIsNoVectorOfThatSizeHasNone) {
  for (const char* text : {"[1,2]", "[1,2,3,4]", "[a,b,c]", "", "[]", "1,,3", "[1,2,3x]"})
    EXPECT_EQ(hintOn("Math::float3", text), "") << text;
  EXPECT_EQ(hintOn("string", "[1,2,3]"), "");
  EXPECT_EQ(hintOn("int", "[1]"), "");
  EXPECT_EQ(hintOn("array<Math::float3>", "[1,2,3]"), "");
}

}  // namespace
}  // namespace vtlcmd::runner

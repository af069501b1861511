#include <gtest/gtest.h>

#include "runner/support/run_graph.h"

namespace vtlcmd::runner {
namespace {

std::vector<bool> compare(const std::string& operation, const std::string& a,
                          const std::string& b) {
  return runOperation(operation, {{"a", a}, {"b", b}}).array<bool>("result");
}

TEST(Comparison, GoesByElementAndNeverHoldsWithANan) {
  const std::string a = constant("array<double>", R"([1, 2, 3, "nan", 0])");
  const std::string b = constant("array<double>", R"([2, 2, 2, "nan", -0.0])");
  using Expected = std::vector<bool>;
  EXPECT_EQ(compare("equal", a, b), (Expected{false, true, false, false, true}));
  EXPECT_EQ(compare("not_equal", a, b), (Expected{true, false, true, true, false}));
  EXPECT_EQ(compare("less", a, b), (Expected{true, false, false, false, false}));
  EXPECT_EQ(compare("less_or_equal", a, b), (Expected{true, true, false, false, true}));
  EXPECT_EQ(compare("greater", a, b), (Expected{false, false, true, false, false}));
  EXPECT_EQ(compare("greater_or_equal", a, b), (Expected{false, true, true, false, true}));
}

TEST(Comparison, ASingleValueIsComparedWithEachElement) {
  EXPECT_EQ(compare("less", constant("uint", "2"), constant("array<uint>", "[1, 2, 4294967295]")),
            (std::vector<bool>{false, false, true}));
  EXPECT_EQ(runOperation("less", {{"a", constant("int", "-1")}, {"b", constant("int", "0")}})
                .single<bool>("result"),
            true);
  EXPECT_EQ(
      runOperation("less",
                   {{"a", constant("array<int>", "[1, 2]")}, {"b", constant("array<int>", "[1]")}})
          .messages,
      (Messages{"error: Node 'node' (less): the arrays differ in length: 2 and 1 elements."}));
}

TEST(Comparison, TextsGoByTheirBytes) {
  EXPECT_EQ(compare("less", constant("array<string>", R"(["B", "é", "a", ""])"),
                    constant("string", R"("a")")),
            (std::vector<bool>{true, false, false, true}));
}

}  // namespace
}  // namespace vtlcmd::runner

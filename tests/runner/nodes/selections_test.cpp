#include <gtest/gtest.h>

#include "runner/support/run_graph.h"

namespace vtlcmd::runner {
namespace {

TEST(Select, OneConditionTakesAWholeValueOfAnyType) {
  const auto select = [](const std::string& condition) {
    return runOperation("select", {{"condition", constant("bool", condition)},
                                   {"a", constant("array<int>", "[1]")},
                                   {"b", constant("array<int>", "[2, 3]")}})
        .array<std::int32_t>("result");
  };
  EXPECT_EQ(select("true"), (std::vector<std::int32_t>{1}));
  EXPECT_EQ(select("false"), (std::vector<std::int32_t>{2, 3}));
}

TEST(Select, ConditionsGoByElement) {
  EXPECT_EQ(runOperation("select", {{"condition", constant("array<bool>", "[true, false]")},
                                    {"a", constant("int", "1")},
                                    {"b", constant("array<int>", "[2, 3]")}})
                .array<std::int32_t>("result"),
            (std::vector<std::int32_t>{1, 3}));
  EXPECT_EQ(
      runOperation("select", {{"condition", constant("array<bool>", "[true]")},
                              {"a", constant("int", "1")},
                              {"b", constant("array<int>", "[2, 3]")}})
          .messages,
      (Messages{"error: Node 'node' (select): the arrays differ in length: 1 and 2 elements."}));
}

TEST(Filter, KeepsWhatTheConditionHoldsFor) {
  EXPECT_EQ(runOperation("filter", {{"array", constant("array<int>", "[1, 2, 3]")},
                                    {"condition", constant("array<bool>", "[true, false, true]")}})
                .array<std::int32_t>("result"),
            (std::vector<std::int32_t>{1, 3}));
  EXPECT_EQ(
      runOperation("filter", {{"array", constant("array<int>", "[1]")},
                              {"condition", constant("array<bool>", "[]")}})
          .messages,
      (Messages{"error: Node 'node' (filter): the arrays differ in length: 1 and 0 elements."}));
}

}  // namespace
}  // namespace vtlcmd::runner

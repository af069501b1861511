#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

TEST(Range, CountsInTheTypeOfItsCount) {
  EXPECT_EQ(runOperation("range", {{"count", constant("int", "3")}}).array<std::int32_t>("result"),
            (std::vector<std::int32_t>{0, 1, 2}));
  EXPECT_EQ(
      runOperation("range", {{"count", constant("ulong", "2")}}).array<std::uint64_t>("result"),
      (std::vector<std::uint64_t>{0, 1}));
  EXPECT_EQ(runOperation("range", {{"count", constant("int", "-1")}}).messages,
            (Messages{"error: Node 'node' (range): the count -1 is negative."}));
}

TEST(Range, TooLongForMemory) {
  EXPECT_EQ(
      runOperation("range", {{"count", constant("ulong", "18446744073709551615")}}).messages,
      (Messages{
          "error: Node 'node' (range): there isn't enough memory for the result of frame ."}));
}

TEST(Random, IsTheSameEverywhere) {
  const auto numbers =
      runOperation("random", {{"count", constant("int", "3")}, {"seed", constant("uint", "7")}})
          .array<float>("result");
  // The first outputs of splitmix64 for this seed, upper 24 bits.
  EXPECT_EQ(numbers,
            (std::vector<float>{0.38982969522476196F, 0.016788244247436523F, 0.9007606506347656F}));
}

TEST(Fill, RepeatsValuesOfAnyType) {
  EXPECT_EQ(runOperation("fill", {{"count", constant("int", "2")},
                                  {"value", constant("Math::float2", "[1, 2]")}})
                .array<Math::float2>("result"),
            (std::vector<Math::float2>{{{1, 2}}, {{1, 2}}}));
  const GraphResult rows = runOperation(
      "fill", {{"count", constant("int", "2")}, {"value", constant("array<short>", "[1, 2]")}});
  EXPECT_STREQ(rows.outputs.at("result").getType().getFullyQualifiedName().c_str(),
               "array<array<short>>");
  EXPECT_EQ(Orvel::ArrayValue(rows.outputs.at("result")).size(), 2U);
}

TEST(Element, CountsFromZero) {
  const auto elementAt = [](const std::string& index) {
    return runOperation("element", {{"array", constant("array<string>", R"(["a", "b"])")},
                                    {"index", constant("long", index)}});
  };
  EXPECT_STREQ(elementAt("1").single<Orvel::String>("result").c_str(), "b");
  EXPECT_EQ(elementAt("2").messages,
            (Messages{"error: Node 'node' (element): the index 2 is out of range, the array has 2 "
                      "elements."}));
}

TEST(Length, IsALong) {
  EXPECT_EQ(runOperation("length", {{"array", constant("array<array<int>>", "[[1, 2], [], []]")}})
                .single<std::int64_t>("result"),
            3);
}

TEST(Slice, TakesAPart) {
  const auto slice = [](const std::string& start, const std::string& count) {
    return runOperation("slice", {{"array", constant("array<int>", "[1, 2, 3]")},
                                  {"start", constant("ulong", start)},
                                  {"count", constant("ulong", count)}});
  };
  EXPECT_EQ(slice("1", "2").array<std::int32_t>("result"), (std::vector<std::int32_t>{2, 3}));
  EXPECT_EQ(slice("3", "0").array<std::int32_t>("result"), std::vector<std::int32_t>{});
  for (const auto& [start, count] :
       {std::pair{"4", "0"}, {"1", "3"}, {"3", "18446744073709551615"}})
    EXPECT_TRUE(slice(start, count).outputs.empty()) << start << " " << count;
}

TEST(ArrayAndConcatenate, BuildArrays) {
  const GraphResult result = runGraph(R"({
    "nodes": [
      {"name": "one", "op": "constant", "type": "int", "value": 1},
      {"name": "two", "op": "constant", "type": "int", "value": 2},
      {"name": "array", "op": "array", "in": {"elements": ["one", "two"]}},
      {"name": "rows", "op": "array", "in": {"elements": ["array", "array"]}},
      {"name": "joined", "op": "concatenate", "in": {"arrays": ["array", "array"]}}],
    "outputs": [{"name": "rows", "from": "rows"}, {"name": "joined", "from": "joined"}]})");
  EXPECT_STREQ(result.outputs.at("rows").getType().getFullyQualifiedName().c_str(),
               "array<array<int>>");
  EXPECT_EQ(result.array<std::int32_t>("joined"), (std::vector<std::int32_t>{1, 2, 1, 2}));
}

}  // namespace
}  // namespace vtlcmd::runner

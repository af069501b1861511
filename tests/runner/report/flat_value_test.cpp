#include "report/flat_value.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

std::string placesIn(const char* value, bool withElements = true) {
  const Json json = parseJson(value);
  std::string text;
  for (const ValuePart& part : partsOf(json, withElements))
    text += part.place + "=" + part.part->dump() + " ";
  return text;
}

TEST(FlatValue, SingleValuesHaveNoPlace) {
  EXPECT_EQ(placesIn("5"), "=5 ");
  EXPECT_EQ(placesIn("null"), "=null ");
  EXPECT_EQ(placesIn("\"a\""), "=\"a\" ");
}

TEST(FlatValue, VectorsHaveComponents) {
  EXPECT_EQ(placesIn("[1,2]"), "x=1 y=2 ");
  EXPECT_EQ(placesIn("[1,2,3,4]"), "x=1 y=2 z=3 w=4 ");
  EXPECT_EQ(placesIn("[1,2,3,4,5]"), "0=1 1=2 2=3 3=4 4=5 ");
}

TEST(FlatValue, ArraysHaveSizesAndStatistics) {
  EXPECT_EQ(placesIn(R"({"sizes":[2],"min":1,"max":[3,4],"average":2.5})"),
            "size=2 min=1 max.x=3 max.y=4 average=2.5 ");
  EXPECT_EQ(placesIn(R"({"sizes":[2,null]})"), "size.0=2 size.1=null ");
}

TEST(FlatValue, ElementsAreLeftOutUnlessWanted) {
  const char* array = R"({"sizes":[2],"elements":[[1,2],[3,4]]})";
  EXPECT_EQ(placesIn(array, false), "size=2 ");
  EXPECT_EQ(placesIn(array), "size=2 elements.0.x=1 elements.0.y=2 elements.1.x=3 elements.1.y=4 ");
}

TEST(FlatValue, ObjectsHaveProperties) {
  EXPECT_EQ(
      placesIn(R"({"points":{"count":3},"position":{"type":"array<int>","sizes":[1]},"no":{}})"),
      "points.count=3 position.type=\"array<int>\" position.size=1 ");
}

}  // namespace
}  // namespace vtlcmd::runner

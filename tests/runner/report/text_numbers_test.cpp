#include "report/text_numbers.h"

#include <cmath>
#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

/// "title: name=number name=number; ..."
std::string shown(const std::string& type, const std::string& text) {
  std::ostringstream stream;
  for (const NumberGroup& group : numbersIn(type, text)) {
    stream << group.title << ":";
    for (const NamedNumber& number : group.numbers)
      stream << ' ' << number.name << '=' << number.number;
    stream << "; ";
  }
  return stream.str();
}

TEST(TextNumbers, Scalars) {
  EXPECT_EQ(shown("int", "-12"), ": value=-12; ");
  EXPECT_EQ(shown("double", "1.5e-07"), ": value=1.5e-07; ");
  EXPECT_EQ(shown("float", "inf"), ": value=inf; ");
  EXPECT_TRUE(std::isnan(numbersIn("float", "-nan").at(0).numbers.at(0).number));
}

TEST(TextNumbers, Vectors) {
  EXPECT_EQ(shown("Math::float2", "{1.5, -2}"), ": x=1.5 y=-2; ");
  EXPECT_EQ(shown("Math::double4", "{1, 2, 3, 4}"), ": x=1 y=2 z=3 w=4; ");
}

TEST(TextNumbers, StatisticsOfAnArray) {
  EXPECT_EQ(shown("array<int>", "(3 int)\n  {\n     min: 0\n     max: 4\n     avg: 2\n  }"),
            ": min=0 max=4 avg=2; ");
}

TEST(TextNumbers, StatisticsOfVectorsAreGroupedByComponent) {
  EXPECT_EQ(shown("array<Math::float2>",
                  "(2 Math::float2)\n  {\n     min: {1f, 2f}\n     max: {3f, 4f}\n"
                  "     avg: {2f, 3f}\n  }"),
            "x: min=1 max=3 avg=2; y: min=2 max=4 avg=3; ");
}

TEST(TextNumbers, ArraysInAnArrayAreNumbered) {
  EXPECT_EQ(
      shown("array<array<int>>",
            "\n(2 out of 2 array<int>)[\n(1 int)\n  {\n     min: 1\n     max: 1\n"
            "     avg: 1\n  },\n(1 int)\n  {\n     min: 3\n     max: 3\n     avg: 3\n  } ]\n"),
      ": min=1 max=1 avg=1; array 2: min=3 max=3 avg=3; ");
}

TEST(TextNumbers, PartsOfAnObject) {
  EXPECT_EQ(shown("Object",
                  "{\n  points: count: 5\n  position: (5 Math::float3)\n  {\n"
                  "     min: {-1f, 0f, -1f}\n     max: {1f, 2f, 1f}\n     avg: {0f, 0.5f, 0f}\n"
                  "  }\n  group: (5 int)\n  {\n     min: 7\n     max: 7\n     avg: 7\n  }\n}"),
            "points: count=5; position x: min=-1 max=1 avg=0; position y: min=0 max=2 avg=0.5; "
            "position z: min=-1 max=1 avg=0; group: min=7 max=7 avg=7; ");
}

TEST(TextNumbers, OtherTextsHaveNone) {
  for (const char* text : {"true", "", "{", "{}", "{1, x}", "{1, 2, 3, 4, 5}", "{1,}", "{\n}",
                           "(0 out of 0 int)", "min: ", "max: {1", "points: count: many"}) {
    EXPECT_EQ(shown("Object", text), "") << text;
  }
}

TEST(TextNumbers, StringsHaveNoneWhateverTheyHold) {
  EXPECT_EQ(shown("string", "\"12\""), "");
  EXPECT_EQ(shown("string", "\"a\nmin: 1\""), "");
  EXPECT_EQ(shown("array<string>", "\n(1 out of 1 string)[\n\"\nmax: 1\" ]\n"), "");
}

}  // namespace
}  // namespace vtlcmd::runner

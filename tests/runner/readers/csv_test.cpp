#include "readers/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "readers/read_error.h"

namespace vtlcmd::runner {
namespace {

using testing::ElementsAre;

Table parse(const std::string& text) {
  MemorySource source({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
  return parseCsv(source);
}

std::string csvRefusal(const std::string& text) {
  try {
    parse(text);
  } catch (const ReadError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Csv, RowsOfNumbers) {
  const Table table = parse("1,-2.5,+3e2\r\n\r\n 4 ,\t5, \"6\" ");
  EXPECT_EQ(table.columns, 3U);
  EXPECT_TRUE(table.names.empty());
  EXPECT_THAT(table.numbers, ElementsAre(1, -2.5, 300, 4, 5, 6));
}

TEST(Csv, AFirstLineOfNames) {
  const Table table = parse("time,\"height, \"\"m\"\"\"\n0,1\n");
  EXPECT_THAT(table.names, ElementsAre("time", "height, \"m\""));
  EXPECT_THAT(table.numbers, ElementsAre(0, 1));
}

TEST(Csv, NumbersThatAreNotFinite) {
  EXPECT_THAT(parse("nan\ninf\n-inf\n").numbers,
              ElementsAre(testing::IsNan(), testing::Gt(1e308), testing::Lt(-1e308)));
}

TEST(Csv, RefusalsNameTheLine) {
  EXPECT_EQ(csvRefusal("1,2,3\n4,5\n"), "line 2: there are 2 fields, not 3");
  EXPECT_EQ(csvRefusal("a,b\n1,\n"), "line 2: '' is no number");
  EXPECT_EQ(csvRefusal("1\n2x\n"), "line 2: '2x' is no number");
  EXPECT_EQ(csvRefusal("1\n1e999\n"), "line 2: '1e999' is no number");
  EXPECT_EQ(csvRefusal("\"1\n"), "line 1: a quote has no end");
  EXPECT_EQ(csvRefusal("\"1\"2\n"), "line 1: there is more behind a quoted field");
  EXPECT_EQ(csvRefusal("a,b\n"), "there are no numbers in it");
  EXPECT_EQ(csvRefusal(""), "there are no numbers in it");
}

}  // namespace
}  // namespace vtlcmd::runner

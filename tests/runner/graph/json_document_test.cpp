#include "graph/json_document.h"

#include <gtest/gtest.h>

#include "graph/graph_error.h"

namespace vtlcmd::runner {
namespace {

std::string documentRefusal(std::string_view text) {
  try {
    const JsonDocument document(text);
  } catch (const GraphError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(JsonDocument, KeepsAll64Bits) {
  EXPECT_EQ(JsonDocument("[18446744073709551615, -9223372036854775808]").root().json(),
            "[18446744073709551615,-9223372036854775808]");
}

TEST(JsonDocument, TheSameKeyMayStandInTwoObjects) {
  EXPECT_EQ(documentRefusal(R"([{"a": 1}, {"a": {"a": 2}}])"), "accepted");
}

TEST(JsonDocument, RepeatedKeysAreRefusedWhereTheyStand) {
  EXPECT_EQ(documentRefusal(R"([1, [2], {"b": [{"a": 1, "c": {}, "a": 2}]}])"),
            "$[2].b[0].a: the key 'a' stands twice in one object");
}

TEST(JsonDocument, EveryKindOfValueIsKept) {
  EXPECT_EQ(JsonDocument(R"({"b": [null, true, -1, 2, 0.5, "x", [], {}], "a": [[1], {"c": 2}]})")
                .root()
                .json(),
            R"({"a":[[1],{"c":2}],"b":[null,true,-1,2,0.5,"x",[],{}]})");
  EXPECT_EQ(JsonDocument("7").root().json(), "7");
}

TEST(JsonDocument, TextsThatAreNoJsonAreRefusedWithLineAndColumn) {
  EXPECT_EQ(
      documentRefusal("{\"a\": [1,\n 2"),
      "line 2, column 3: syntax error while parsing array - unexpected end of input; expected "
      "']'");
  EXPECT_EQ(documentRefusal("[1] 2"),
            "line 1, column 5: syntax error while parsing value - unexpected number literal; "
            "expected end of input");
}

TEST(JsonDocument, NumbersOutOfRangeAreRefusedWhereTheyStand) {
  EXPECT_EQ(documentRefusal(R"({"a": [{}, [], "x", 1e999]})"),
            "$.a[3]: number overflow parsing '1e999'");
  EXPECT_EQ(documentRefusal("-1e999"), "$: number overflow parsing '-1e999'");
}

TEST(JsonDocument, NulCharactersAreRefusedWhereTheyStand) {
  using namespace std::string_view_literals;
  EXPECT_EQ(documentRefusal(R"({"a": ["x\u0000y"]})"), "$.a[0]: a text can't hold a NUL character");
  EXPECT_EQ(documentRefusal(R"([{"x\u0000y": 1}])"), "$[0]: a text can't hold a NUL character");
  EXPECT_EQ(documentRefusal(R"([1, {"a": {}, "x\u0000y": 1}])"),
            "$[1]: a text can't hold a NUL character");
  EXPECT_EQ(documentRefusal("[1]\n\0[2]"sv), "line 2, column 1: a NUL character can't stand here");
  EXPECT_EQ(documentRefusal("[\"\0\"]"sv), "line 1, column 3: a NUL character can't stand here");
}

}  // namespace
}  // namespace vtlcmd::runner

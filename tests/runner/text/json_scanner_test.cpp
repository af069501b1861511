#include "text/json_scanner.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace vtlcmd::runner {
namespace {

TEST(JsonScanner, CutsValuesOutAsTheyStand) {
  std::istringstream stream(" {\"a\": [1, {}]} ,\t\"]\\\"\\\\\"\r\n-1.5e3,true]");
  JsonScanner scanner(stream);
  EXPECT_EQ(scanner.value(), "{\"a\": [1, {}]}");
  EXPECT_TRUE(scanner.take(','));
  EXPECT_EQ(scanner.value(), "\"]\\\"\\\\\"");
  EXPECT_FALSE(scanner.take(','));
  EXPECT_EQ(scanner.value(), "-1.5e3");
  scanner.require(',');
  EXPECT_EQ(scanner.value(), "true");
  EXPECT_FALSE(scanner.isAtEnd());
  scanner.require(']');
  EXPECT_TRUE(scanner.isAtEnd());
}

TEST(JsonScanner, SkipsWhatIsNotWanted) {
  std::istringstream stream(R"({"x":"}"}null)");
  JsonScanner scanner(stream);
  scanner.skipValue();
  EXPECT_EQ(scanner.value(), "null");
}

TEST(JsonScanner, RefusesWhatIsNoValueOrNotWhole) {
  for (const char* text : {"", " ", ",", "]", "}", ":", "{", "[[]", "\"a", "\"a\\", "{\"a}"}) {
    std::istringstream stream(text);
    EXPECT_THROW(JsonScanner(stream).skipValue(), JsonScanError) << text;
  }
  std::istringstream stream("a");
  EXPECT_THROW(JsonScanner(stream).require('b'), JsonScanError);
}

}  // namespace
}  // namespace vtlcmd::runner

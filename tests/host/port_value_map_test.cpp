#include "vtlcmd/host/port_value_map.h"

#include <gtest/gtest.h>
#include <string>

#include "vtlcmd/stand_in/make_string.h"

namespace vtlcmd {
namespace {

// Published FNV-1a test values.
TEST(PortValueMap, HashIsFnv1a) {
  EXPECT_EQ(PortValueMap::hash(""), 0xcbf29ce484222325);
  EXPECT_EQ(PortValueMap::hash("a"), 0xaf63dc4c8601ec8c);
  EXPECT_EQ(PortValueMap::hash("foobar"), 0x85944171f73967e8);
  EXPECT_EQ(PortValueMap::hash("chongo was here!\n"), 0x46810940eff5f915);
}

TEST(PortValueMap, HashTakesHighBytesUnsigned) {
  EXPECT_EQ(PortValueMap::hash("\xff"), (0xcbf29ce484222325 ^ 0xff) * 0x100000001b3);
}

TEST(PortValueMap, EmptyMapFindsNothing) {
  const PortValueMap map;
  EXPECT_TRUE(map.empty());
  EXPECT_EQ(map.find("count"), nullptr);
  EXPECT_EQ(map.find(""), nullptr);
}

TEST(PortValueMap, FindsEveryNameOfManyExactly) {
  PortValueMap map;
  constexpr int count = 1000;
  for (int i = 0; i < count; ++i) {
    map.insert(("port" + std::to_string(i)).c_str(), {"host", std::to_string(i).c_str()});
  }
  EXPECT_EQ(map.size(), 1000U);
  for (int i = 0; i < count; ++i) {
    const PortValueEntry* entry = map.find(("port" + std::to_string(i)).c_str());
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text.c_str(), std::to_string(i));
  }
  EXPECT_EQ(map.find("Port1"), nullptr);
  EXPECT_EQ(map.find("port"), nullptr);
  EXPECT_EQ(map.find("port1000"), nullptr);
}

TEST(PortValueMap, LaterEntryReplacesTheEarlier) {
  for (const char* name : {"count", ""}) {
    PortValueMap map;
    map.insert(name, {"", "1"});
    map.insert(name, {"", "2"});
    EXPECT_EQ(map.size(), 1U);
    ASSERT_NE(map.find(name), nullptr);
    EXPECT_STREQ(map.find(name)->text.c_str(), "2");
  }
}

TEST(PortValueMap, EmptyNameAndEmptyTextAreEntriesLikeAnyOther) {
  PortValueMap map;
  map.insert("", {"", ""});
  ASSERT_NE(map.find(""), nullptr);
  EXPECT_STREQ(map.find("")->text.c_str(), "");
}

TEST(PortValueMap, EmptyNameIsFoundAfterGrowth) {
  PortValueMap map;
  map.insert("", {"", "empty"});
  for (int i = 0; i < 1000; ++i) {
    map.insert(("port" + std::to_string(i)).c_str(), {});
    ASSERT_NE(map.find(""), nullptr) << i;
  }
}

TEST(PortValueMap, EmptyNameIsFoundInAMapOfMany) {
  PortValueMap map;
  for (int i = 0; i < 1000; ++i) map.insert(("port" + std::to_string(i)).c_str(), {});
  map.insert("", {"", "empty"});
  ASSERT_NE(map.find(""), nullptr);
  EXPECT_STREQ(map.find("")->text.c_str(), "empty");
}

TEST(PortValueMap, CopiesStandAlone) {
  PortValueMap map;
  map.insert("count", {"", "1"});
  PortValueMap copy = map;
  map.insert("count", {"", "2"});
  map.insert("other", {"", "3"});
  ASSERT_NE(copy.find("count"), nullptr);
  EXPECT_STREQ(copy.find("count")->text.c_str(), "1");
  EXPECT_EQ(copy.find("other"), nullptr);
}

TEST(PortValueMap, BucketIsTheHashMasked) {
  PortValueMap map;
  EXPECT_EQ(map.bucketCount(), 0U);
  for (std::size_t count = 1; count <= 17; ++count) {
    map.insert(("port" + std::to_string(count)).c_str(), {});
    EXPECT_EQ(map.bucketCount(), count <= 8 ? 8U : count <= 16 ? 16U : 32U);
  }
  EXPECT_EQ(map.bucketOf(""), 0xcbf29ce484222325 & 31);
  EXPECT_EQ(map.bucketOf("foobar"), 0x85944171f73967e8 & 31);
  EXPECT_EQ(map.bucketOf("chongo was here!\n"), 0x46810940eff5f915 & 31);
}

TEST(PortValueMap, NamesAreToldApartBehindANulByte) {
  const Orvel::String names[] = {Orvel::String("a"), Orvel::makeString({"a\0b", 3}),
                                 Orvel::makeString({"a\0c", 3}), Orvel::makeString({"a\0", 2})};
  PortValueMap map;
  for (std::size_t i = 0; i < 3; ++i) map.insert(names[i], {"", std::to_string(i).c_str()});
  EXPECT_EQ(map.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const PortValueEntry* entry = map.find(names[i]);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text.c_str(), std::to_string(i));
  }
  EXPECT_EQ(map.find(names[3]), nullptr);
  EXPECT_EQ(map.bucketOf(names[1].c_str()), map.bucketOf("a"));
}

}  // namespace
}  // namespace vtlcmd

#include "journal/journal_reader.h"

#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace vtlcmd::runner {
namespace {

const std::string first = journalText({"run", R"({"form":1})", R"({"host":",\"times\":{}"})"});
const std::string second = journalText({"frame", R"({"index":0})", R"({"seconds":0.5})"});

std::vector<std::string> contentsOf(const std::string& text) {
  std::istringstream stream(text);
  JournalReader reader(stream, "J");
  std::vector<std::string> contents;
  while (reader.next()) contents.emplace_back(reader.line().content);
  return contents;
}

/// What a journal's error says; empty when there is none.
std::string errorOf(const std::string& text) {
  try {
    contentsOf(text);
  } catch (const JournalError& error) {
    return error.what();
  }
  return {};
}

TEST(JournalReader, GivesWhatWasWritten) {
  std::istringstream stream(first + second);
  JournalReader reader(stream, "J");
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(reader.line().kind, "run");
  EXPECT_EQ(reader.line().content, R"({"form":1})");
  EXPECT_EQ(reader.line().times, R"({"host":",\"times\":{}"})");
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(reader.line().kind, "frame");
  EXPECT_EQ(reader.parse(reader.line().times).at("seconds"), 0.5);
  EXPECT_FALSE(reader.next());
}

TEST(JournalReader, EveryLineIsJson) {
  const nlohmann::json line = nlohmann::json::parse(second);
  EXPECT_EQ(line.at("frame").at("index"), 0);
  EXPECT_EQ(line.at("crc32").get<std::string>().size(), 8U);
}

TEST(JournalReader, ALastLineCutAnywhereIsLeftOut) {
  for (std::size_t size = 0; size < second.size(); ++size) {
    EXPECT_EQ(contentsOf(first + second.substr(0, size)), std::vector<std::string>{R"({"form":1})"})
        << "cut after " << size << " bytes";
  }
}

TEST(JournalReader, EveryOtherChangedByteIsDamage) {
  const std::size_t lineEnd = second.size() - 1;
  for (std::size_t place = 0; place < lineEnd; ++place) {
    std::string damaged = first + second + first;
    damaged[first.size() + place] ^= 1;
    EXPECT_EQ(errorOf(damaged), "J: line 2 is damaged") << "byte " << place;
  }
}

TEST(JournalReader, ALineCutInTheMiddleIsDamage) {
  for (std::size_t size = 0; size < second.size() - 1; ++size)
    EXPECT_EQ(errorOf(first + second.substr(0, size) + "\n" + first), "J: line 2 is damaged");
  EXPECT_EQ(errorOf(first + second.substr(0, 40) + first), "J: line 2 is damaged");
}

TEST(JournalReader, OtherFilesAreNoJournals) {
  EXPECT_EQ(errorOf(R"({"nodes":[]})"), "J is no journal of a run");
  EXPECT_EQ(errorOf(std::string(100, '\0')), "J is no journal of a run");
  EXPECT_EQ(errorOf(""), "");
  EXPECT_EQ(errorOf(first.substr(0, 5)), "");
}

}  // namespace
}  // namespace vtlcmd::runner

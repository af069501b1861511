#include "report/folded_texts.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

void add(FoldedTexts& texts, std::uint64_t index, const std::string& text) {
  texts.add(index, std::to_string(index), text);
}

TEST(FoldedTexts, ATextThatComesAgainStandsOnce) {
  FoldedTexts texts(1000);
  for (std::uint64_t i = 0; i < 6; ++i) add(texts, i, i % 3 == 2 ? "b" : "a");
  ASSERT_EQ(texts.first().size(), 2U);
  EXPECT_EQ(texts.first()[0].text, "a");
  EXPECT_EQ(texts.first()[0].frames.text(), "0–1, 3–4");
  EXPECT_EQ(texts.first()[1].frames.text(), "2, 5");
  EXPECT_TRUE(texts.last().empty());
}

TEST(FoldedTexts, OfTooMuchTheFirstAndTheLastStay) {
  FoldedTexts texts(10'000);
  std::size_t most = 0;
  for (std::uint64_t i = 0; i < 10'000; ++i) {
    add(texts, i, "text " + std::to_string(i));
    most = std::max(most, texts.first().size() + texts.last().size());
  }
  ASSERT_FALSE(texts.last().empty());
  EXPECT_LE(most, 10'000U / 40);
  EXPECT_EQ(texts.first().front().text, "text 0");
  EXPECT_EQ(texts.last().back().text, "text 9999");
  EXPECT_EQ(texts.first().size() + texts.leftOut() + texts.last().size(), 10'000U);
}

TEST(FoldedTexts, ATextOfTheFirstIsKnownToTheEnd) {
  FoldedTexts texts(400);
  add(texts, 0, "known");
  for (std::uint64_t i = 1; i < 100; ++i) add(texts, i, std::to_string(i));
  add(texts, 100, "known");
  EXPECT_EQ(texts.first().front().frames.text(), "0, 100");
}

TEST(FoldedTexts, ATextThatIsLargerThanTheRoomStaysAlone) {
  FoldedTexts texts(10);
  add(texts, 0, std::string(1000, 'x'));
  add(texts, 1, std::string(1000, 'y'));
  add(texts, 2, std::string(1000, 'z'));
  EXPECT_EQ(texts.first().size(), 1U);
  EXPECT_EQ(texts.last().size(), 1U);
  EXPECT_EQ(texts.leftOut(), 1U);
}

}  // namespace
}  // namespace vtlcmd::runner

#include "vtlcmd/logging/vtlcmd_logger.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

#include "vtlcmd/stand_in/make_string.h"

namespace vtlcmd {
namespace {

std::ptrdiff_t offsetIn(const VtlCmdLogger& logger, const void* field) {
  return static_cast<const std::byte*>(field) - reinterpret_cast<const std::byte*>(&logger);
}

TEST(VtlCmdLogger, FieldsUpToErrorCountStandWhereBothSidesExpectThem) {
  const VtlCmdLogger logger(10);
  EXPECT_EQ(offsetIn(logger, &logger.printLimit), 8);
  EXPECT_EQ(offsetIn(logger, &logger.countingEnabled), 12);
  EXPECT_EQ(offsetIn(logger, &logger.warningCount), 16);
  EXPECT_EQ(offsetIn(logger, &logger.errorCount), 24);
}

TEST(VtlCmdLogger, StartsAsResetLeavesIt) {
  const VtlCmdLogger logger(3);
  EXPECT_EQ(logger.printLimit, 3U);
  EXPECT_FALSE(logger.countingEnabled);
  EXPECT_EQ(logger.warningCount, 0U);
  EXPECT_EQ(logger.errorCount, 0U);
  EXPECT_EQ(logger.currentGroupIndex, VtlCmdLogger::noCurrent);
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
}

TEST(VtlCmdLogger, MessageWithoutAGroupHasNoIndices) {
  VtlCmdLogger logger(1);
  logger.addMessage(7, 42, "text");
  ASSERT_EQ(logger.messages.size(), 1U);
  EXPECT_EQ(logger.messages[0].source, 7);
  EXPECT_EQ(logger.messages[0].level, 42);
  EXPECT_EQ(logger.messages[0].text, "text");
  EXPECT_EQ(logger.messages[0].groupIndex, 0xFFFFFFFFFFFFFFFF);
  EXPECT_EQ(logger.messages[0].entryIndex, 0xFFFFFFFFFFFFFFFF);
}

TEST(VtlCmdLogger, MessageCarriesTheCurrentIndices) {
  VtlCmdLogger logger(1);
  logger.beginGroup("first");
  logger.beginGroup("second");
  logger.addMessage(0, 4, "between");
  logger.beginEntry({});
  logger.addMessage(0, 4, "inside");
  EXPECT_EQ(logger.messages[0].groupIndex, 1U);
  EXPECT_EQ(logger.messages[0].entryIndex, VtlCmdLogger::noCurrent);
  EXPECT_EQ(logger.messages[1].entryIndex, 0U);
}

struct CountedMessage {
  LogSource source;
  LogLevel level;
  std::uint64_t warnings;
  std::uint64_t errors;
};

TEST(VtlCmdLogger, CountsSource1AloneAndOnlyWhileCounting) {
  for (const CountedMessage& row : {CountedMessage{0, 1, 0, 0},
                                    {0, 2, 0, 0},
                                    {0, 3, 0, 0},
                                    {1, 0, 0, 0},
                                    {1, 1, 0, 1},
                                    {1, 2, 0, 1},
                                    {1, 3, 1, 0},
                                    {1, 4, 0, 0},
                                    {1, 5, 0, 0},
                                    {1, 6, 0, 0},
                                    {1, 7, 0, 0},
                                    {1, 0xFFFF, 0, 0},
                                    {2, 1, 0, 0},
                                    {2, 2, 0, 0},
                                    {257, 2, 0, 0}}) {
    VtlCmdLogger logger(1);
    logger.addMessage(row.source, row.level, "not counted");
    EXPECT_EQ(logger.errorCount + logger.warningCount, 0U);
    logger.countingEnabled = true;
    logger.addMessage(row.source, row.level, "counted");
    EXPECT_EQ(logger.warningCount, row.warnings) << row.source << " " << row.level;
    EXPECT_EQ(logger.errorCount, row.errors) << row.source << " " << row.level;
    EXPECT_EQ(logger.messages.size(), 2U);
  }
}

TEST(VtlCmdLogger, CountingScopesDoNotNest) {
  VtlCmdLogger logger(1);
  const CountingScope outer(logger);
  EXPECT_TRUE(logger.countingEnabled);
  {
    const CountingScope inner(logger);
    logger.addMessage(1, 2, "text");
  }
  EXPECT_FALSE(logger.countingEnabled);
  EXPECT_EQ(logger.errorCount, 1U);
}

TEST(VtlCmdLogger, PrefixIsTwoPiecesOfTenCharacters) {
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 1), "[vtlcmd]  Critical: ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 2), "[vtlcmd]  Error:    ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 3), "[vtlcmd]  Warning:  ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 4), "[vtlcmd]            ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 5), "[vtlcmd]            ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 6), "[vtlcmd]            ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(1, 3), "[Vantrel] Warning:  ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(2, 3), "[Vantrel] Warning:  ");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0xFFFF, 6), "[Vantrel]           ");
}

TEST(VtlCmdLogger, PrefixOfAnyOtherLevelIsEmpty) {
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(0, 0), "");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(1, 7), "");
  EXPECT_EQ(VtlCmdLogger::makeMessagePrefix(1, 0xFFFF), "");
}

TEST(VtlCmdLogger, TwoSeverityCodesOfTheGraphSystem) {
  const auto levelOf = [](auto severity) {
    VtlCmdLogger logger(1);
    logger.addVantrelMessage(severity, "text");
    EXPECT_EQ(logger.messages[0].source, 1);
    EXPECT_EQ(logger.messages[0].text, "text");
    return logger.messages[0].level;
  };
  EXPECT_EQ(levelOf(std::uint16_t{0}), 5);
  EXPECT_EQ(levelOf(std::uint16_t{1}), 2);
  EXPECT_EQ(levelOf(std::uint16_t{2}), 3);
  EXPECT_EQ(levelOf(std::uint16_t{3}), 5);
  EXPECT_EQ(levelOf(std::uint16_t{0xFFFF}), 5);
  EXPECT_EQ(levelOf(std::int32_t{0}), 2);
  EXPECT_EQ(levelOf(std::int32_t{1}), 3);
  EXPECT_EQ(levelOf(std::int32_t{2}), 5);
  EXPECT_EQ(levelOf(std::int32_t{-1}), 5);
}

TEST(VtlCmdLogger, LevelAdmitsTheSeveritiesBelowIt) {
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(0, 0));
  EXPECT_TRUE(VtlCmdLogger::levelAdmits(1, 0));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(1, 1));
  EXPECT_TRUE(VtlCmdLogger::levelAdmits(3, 2));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(3, 3));
  EXPECT_TRUE(VtlCmdLogger::levelAdmits(6, 5));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(6, 6));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(7, 0));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(-1, 0));
  EXPECT_FALSE(VtlCmdLogger::levelAdmits(6, 0xFFFFFFFF));
}

TEST(VtlCmdLogger, LevelNamesStandInTheOrderOfTheLevels) {
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelNone], "none");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelCritical], "critical");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelError], "error");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelWarning], "warning");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelProgress], "progress");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelVerbose], "verbose");
  EXPECT_STREQ(VtlCmdLogger::levelNames[levelDebug], "debug");
}

TEST(VtlCmdLogger, ResetKeepsMessagesAndPrintLimit) {
  VtlCmdLogger logger(5);
  logger.beginGroup("group");
  logger.beginEntry({});
  logger.countingEnabled = true;
  logger.addMessage(1, 2, "kept");
  logger.addMessage(1, 3, "kept");
  logger.texts = {"text"};
  logger.fallbackEntry.graphName = "name";
  logger.fallbackEntry.inputsSet = true;
  logger.reset();
  EXPECT_EQ(logger.printLimit, 5U);
  EXPECT_FALSE(logger.countingEnabled);
  EXPECT_EQ(logger.errorCount, 0U);
  EXPECT_EQ(logger.warningCount, 0U);
  EXPECT_TRUE(logger.texts.empty());
  EXPECT_EQ(logger.fallbackEntry.graphName, "");
  EXPECT_FALSE(logger.fallbackEntry.inputsSet);
  EXPECT_TRUE(logger.groups.empty());
  EXPECT_EQ(logger.currentGroupIndex, VtlCmdLogger::noCurrent);
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
  ASSERT_EQ(logger.messages.size(), 2U);
  EXPECT_EQ(logger.messages[0].groupIndex, 0U);
  EXPECT_EQ(&logger.messagesFor(logger.messages[0].groupIndex, logger.messages[0].entryIndex),
            &logger.fallbackEntry.messages);
}

TEST(VtlCmdLogger, AddTextsAppendsUpToTheFirstNul) {
  VtlCmdLogger logger(1);
  logger.texts = {"before"};
  Orvel::Array<Orvel::String> array;
  array.append("one");
  array.append(Orvel::makeString({"tw\0o", 4}));
  array.append("");
  logger.addTexts(array);
  EXPECT_EQ(logger.texts, (std::vector<std::string>{"before", "one", "tw", ""}));
}

TEST(VtlCmdLogger, AddTextsAppendsAllWhateverRoomThereIs) {
  VtlCmdLogger logger(1);
  Orvel::Array<Orvel::String> array;
  logger.addTexts(array);
  EXPECT_TRUE(logger.texts.empty());
  array.append("a");
  array.append("b");
  array.append("c");
  logger.addTexts(array);
  EXPECT_EQ(logger.texts, (std::vector<std::string>{"a", "b", "c"}));
  logger.addTexts(array);
  EXPECT_EQ(logger.texts, (std::vector<std::string>{"a", "b", "c", "a", "b", "c"}));
}

}  // namespace
}  // namespace vtlcmd

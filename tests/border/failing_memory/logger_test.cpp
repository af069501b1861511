#include <gtest/gtest.h>

#include "border/failing_memory/every_allocation.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

/// The logger is shared source: this is the copy of a program, to which the plug-in's calls are the
/// same.

namespace vtlcmd::testing {
namespace {

constexpr const char* longText = "a text of more bytes than a string keeps in itself";

struct Logger : VtlCmdLogger {
  Logger() : VtlCmdLogger(10) {
    beginGroup("the first group, of a long name");
    addMessage(vantrelSource, levelWarning, longText);
  }
};

RunDescription description() {
  RunDescription described;
  described.graphName = longText;
  described.arguments = {longText, longText};
  described.inputValues.insert("port", {"", longText});
  described.properties[Orvel::String("key")] = longText;
  described.sceneFile = L"/a/path/of/more/characters/than/a/string/keeps";
  return described;
}

/// Whether nothing is lost and nothing half done: each further call works as ever.
void expectUsable(VtlCmdLogger& logger) {
  const std::size_t messages = logger.messages.size();
  ASSERT_GE(messages, 1U);
  EXPECT_EQ(logger.messages.front().text, longText);
  for (const LogMessage& message : logger.messages) EXPECT_EQ(message.text, longText);
  logger.addMessage(vtlcmdSource, levelProgress, "one more");
  ASSERT_EQ(logger.messages.size(), messages + 1);
  EXPECT_EQ(logger.messages.back().text, "one more");
  logger.beginGroup("one more group");
  ASSERT_NE(logger.currentGroup(), nullptr);
  EXPECT_EQ(logger.currentGroup()->name, "one more group");
  logger.beginEntry(description());
  logger.reportOutputValue("port", "type", "value");
  EXPECT_EQ(logger.currentEntry().outputs.at("port").valueText, "value");
  EXPECT_EQ(logger.currentEntry().graphName, longText);
  logger.endGroup();
  logger.reset();
  EXPECT_TRUE(logger.groups.empty());
}

template <typename Operate, typename Check>
void failEach(const Operate& operate, const Check& check) {
  const std::size_t failures = failEveryAllocation([] { return Logger(); }, operate,
                                                   [&](Logger& logger, bool threw) {
                                                     check(logger, threw);
                                                     expectUsable(logger);
                                                   });
  EXPECT_GT(failures, 0U);
}

TEST(FailingMemoryInTheLogger, Messages) {
  const std::string text = longText;
  failEach(
      [&](Logger& logger) { logger.addMessage(vtlcmdSource, levelError, text); },
      [](const Logger& logger, bool threw) { EXPECT_EQ(logger.messages.size(), threw ? 1U : 2U); });
}

TEST(FailingMemoryInTheLogger, CountedMessages) {
  const std::string text = longText;
  failEach(
      [&](Logger& logger) {
        const CountingScope counting(logger);
        logger.addVantrelMessage(std::uint16_t{1}, text);
        logger.addVantrelMessage(std::int32_t{1}, text);
      },
      [](const Logger& logger, bool threw) {
        EXPECT_FALSE(logger.countingEnabled);
        EXPECT_EQ(logger.messages.size(), 1 + logger.errorCount + logger.warningCount);
        EXPECT_EQ(logger.warningCount == 1, !threw);
      });
}

TEST(FailingMemoryInTheLogger, Prefixes) {
  failEach([](Logger&) { VtlCmdLogger::makeMessagePrefix(vantrelSource, levelCritical); },
           [](const Logger&, bool) {});
}

TEST(FailingMemoryInTheLogger, Texts) {
  Orvel::Array<Orvel::String> texts;
  for (int i = 0; i < 3; ++i) texts.append(Orvel::String(longText));
  failEach([&](Logger& logger) { logger.addTexts(texts); },
           [](const Logger& logger, bool threw) {
             EXPECT_EQ(logger.texts.size() == 3, !threw);
             for (const std::string& text : logger.texts) EXPECT_EQ(text, longText);
           });
}

TEST(FailingMemoryInTheLogger, Groups) {
  const std::string name = longText;
  failEach([&](Logger& logger) { logger.beginGroup(name); },
           [](const Logger& logger, bool threw) {
             ASSERT_EQ(logger.groups.size(), threw ? 1U : 2U);
             EXPECT_EQ(logger.currentGroupIndex, threw ? 0U : 1U);
             EXPECT_EQ(logger.groups.back().name,
                       threw ? "the first group, of a long name" : longText);
           });
}

TEST(FailingMemoryInTheLogger, Entries) {
  const RunDescription described = description();
  failEach([&](Logger& logger) { logger.beginEntry(described); },
           [](const Logger& logger, bool threw) {
             ASSERT_EQ(logger.groups.size(), 1U);
             EXPECT_EQ(logger.groups[0].entries.size(), threw ? 0U : 1U);
             EXPECT_EQ(logger.currentEntryIndex, threw ? VtlCmdLogger::noCurrent : 0U);
           });
}

TEST(FailingMemoryInTheLogger, FallbackEntry) {
  const RunDescription described = description();
  failEach(
      [&](Logger& logger) {
        logger.endGroup();
        logger.beginEntry(described);
      },
      [](const Logger& logger, bool threw) {
        EXPECT_EQ(logger.fallbackEntry.graphName, threw ? "" : longText);
        EXPECT_EQ(logger.fallbackEntry.properties.size(), threw ? 0U : 1U);
      });
}

TEST(FailingMemoryInTheLogger, OutputReports) {
  failEach(
      [](Logger& logger) {
        logger.reportOutputValue(longText, longText, longText);
        logger.reportOutputSuppressed(longText, "another type, of a name that is long as well");
      },
      [](const Logger& logger, bool threw) {
        const auto& outputs = logger.fallbackEntry.outputs;
        if (outputs.empty()) {
          EXPECT_TRUE(threw);
          return;
        }
        const OutputReport& report = outputs.at(longText);
        EXPECT_EQ(report.valueText, report.valueShown ? longText : "");
        EXPECT_EQ(report.typeName == longText, report.valueShown);
        EXPECT_EQ(report.valueShown, threw);
      });
}

TEST(FailingMemoryInTheLogger, WhatNeedsNoMemory) {
  Logger logger;
  logger.beginEntry(description());
  const FailingMemory memory(0, Failure::lasting);
  logger.setLoaded(true);
  logger.setFinished(true);
  logger.setInputsSet(true);
  logger.messagesFor(0, 0);
  logger.endEntry();
  logger.endGroup();
  logger.reset();
  EXPECT_FALSE(FailingMemory::hasFailed());
}

}  // namespace
}  // namespace vtlcmd::testing

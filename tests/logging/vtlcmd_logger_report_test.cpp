#include <gtest/gtest.h>

#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd {
namespace {

RunDescription describe(const char* name) {
  RunDescription description;
  description.graphName = name;
  description.graphFile = "graph.json";
  description.arguments = {"-f", "1"};
  description.frameIndex = 1;
  description.frameCount = 2;
  description.inputCount = 3;
  description.outputCount = 4;
  description.inputValues.insert("in", {"", "1"});
  description.jobValues.insert("job", {"", "2"});
  description.properties["key"] = "value";
  description.printLimit = 5;
  description.frameText = "1.5";
  description.verbosity = 6;
  description.throughAny = 1;
  description.sceneFile = L"scene";
  description.secondaryPath = L"second";
  return description;
}

void expectDescribed(const RunDescription& description, const char* name) {
  EXPECT_EQ(description.graphName, name);
  EXPECT_EQ(description.graphFile, "graph.json");
  EXPECT_EQ(description.arguments, (std::vector<std::string>{"-f", "1"}));
  EXPECT_EQ(description.frameIndex, 1U);
  EXPECT_EQ(description.frameCount, 2U);
  EXPECT_EQ(description.inputCount, 3U);
  EXPECT_EQ(description.outputCount, 4U);
  EXPECT_STREQ(description.inputValues.find("in")->text.c_str(), "1");
  EXPECT_STREQ(description.jobValues.find("job")->text.c_str(), "2");
  EXPECT_STREQ(description.properties.at("key").c_str(), "value");
  EXPECT_EQ(description.printLimit, 5U);
  EXPECT_EQ(description.frameText, "1.5");
  EXPECT_EQ(description.verbosity, 6U);
  EXPECT_EQ(description.throughAny, 1);
  EXPECT_EQ(description.sceneFile, L"scene");
  EXPECT_EQ(description.secondaryPath, L"second");
}

class RunReport : public ::testing::Test {
 protected:
  VtlCmdLogger logger{10};
};

TEST_F(RunReport, WithoutAGroupReportsLandInTheFallbackEntry) {
  logger.reportOutputValue("result", "int", "42");
  const OutputReport& report = logger.fallbackEntry.outputs.at("result");
  EXPECT_EQ(report.typeName, "int");
  EXPECT_EQ(report.valueText, "42");
  EXPECT_TRUE(report.valueShown);
}

TEST_F(RunReport, PartsOfTheReportMayNameAndDescribeWhatComesNext) {
  const std::string longName(100, 'n');
  logger.beginGroup(longName);
  logger.beginEntry(describe("graph"));
  for (int i = 0; i < 20; ++i) {
    logger.beginEntry(logger.currentEntry());
    expectDescribed(logger.currentEntry(), "graph");
  }
  for (int i = 0; i < 20; ++i) {
    ASSERT_NE(logger.currentGroup(), nullptr);
    logger.beginGroup(logger.currentGroup()->name);
    EXPECT_EQ(logger.groups.back().name, longName);
  }
}

TEST_F(RunReport, AnEntryMayDescribeTheFallbackEntryAndBackAgain) {
  logger.beginEntry(describe("graph"));
  logger.beginEntry(logger.fallbackEntry);
  expectDescribed(logger.fallbackEntry, "graph");
}

TEST_F(RunReport, InAGroupWithoutEntryReportsAndMessagesPart) {
  logger.beginGroup("group");
  logger.reportOutputValue("result", "int", "42");
  logger.reportOutputSuppressed("hidden", "int");
  EXPECT_EQ(logger.fallbackEntry.outputs.count("result"), 1U);
  EXPECT_EQ(logger.fallbackEntry.outputs.count("hidden"), 1U);
  EXPECT_EQ(&logger.messagesFor(logger.currentGroupIndex, VtlCmdLogger::noCurrent),
            &logger.groups[0].messages);
}

TEST_F(RunReport, EntryTakesReportsAndMessages) {
  logger.beginGroup("group");
  logger.beginEntry(describe("entry"));
  logger.reportOutputSuppressed("result", "float");
  ReportEntry& entry = logger.groups[0].entries[0];
  expectDescribed(entry, "entry");
  EXPECT_EQ(entry.outputs.at("result").typeName, "float");
  EXPECT_FALSE(entry.outputs.at("result").valueShown);
  logger.reportOutputValue("shown", "int", "42");
  EXPECT_EQ(entry.outputs.count("shown"), 1U);
  EXPECT_TRUE(logger.fallbackEntry.outputs.empty());
  EXPECT_EQ(&logger.messagesFor(0, 0), &entry.messages);
  EXPECT_EQ(&logger.currentEntry(), &entry);
}

TEST_F(RunReport, LaterReportReplacesTheEarlierWhole) {
  logger.reportOutputValue("result", "int", "42");
  logger.reportOutputSuppressed("result", "float");
  const OutputReport& report = logger.fallbackEntry.outputs.at("result");
  EXPECT_EQ(report.typeName, "float");
  EXPECT_EQ(report.valueText, "");
  EXPECT_FALSE(report.valueShown);
  logger.reportOutputValue("result", "int", "7");
  EXPECT_EQ(report.valueText, "7");
  EXPECT_TRUE(report.valueShown);
  EXPECT_EQ(logger.fallbackEntry.outputs.size(), 1U);
}

TEST_F(RunReport, ReportMayBeMadeOfThePartsOfTheOneItReplaces) {
  const std::string longType(40, 't');
  const std::string longValue(60, 'v');
  logger.reportOutputValue("result", longType.c_str(), longValue.c_str());
  const OutputReport& report = logger.fallbackEntry.outputs.at("result");
  logger.reportOutputValue(logger.fallbackEntry.outputs.begin()->first.c_str(),
                           report.valueText.c_str(), report.typeName.c_str());
  EXPECT_EQ(report.typeName, longValue);
  EXPECT_EQ(report.valueText, longType);
  logger.reportOutputValue("result", report.valueText.c_str() + 10, report.valueText.c_str() + 30);
  EXPECT_EQ(report.typeName, std::string(30, 't'));
  EXPECT_EQ(report.valueText, std::string(10, 't'));
}

TEST_F(RunReport, OutputsStandInByteOrderOfTheirNames) {
  for (const char* name : {"b", "a\xff", "ab", "a", "B"}) {
    logger.reportOutputValue(name, "int", "1");
  }
  std::vector<std::string> names;
  for (const auto& [name, report] : logger.fallbackEntry.outputs) names.push_back(name);
  EXPECT_EQ(names, (std::vector<std::string>{"B", "a", "ab", "a\xff", "b"}));
}

TEST_F(RunReport, EntryWithoutGroupRedescribesTheFallbackEntry) {
  logger.reportOutputValue("kept", "int", "1");
  logger.setExecuted(true);
  logger.currentEntryIndex = 17;
  logger.beginEntry(describe("again"));
  EXPECT_EQ(logger.currentEntryIndex, 17U);
  expectDescribed(logger.fallbackEntry, "again");
  EXPECT_EQ(logger.fallbackEntry.outputs.count("kept"), 1U);
  EXPECT_TRUE(logger.fallbackEntry.executed);
}

TEST_F(RunReport, SecondGroupIsCurrentWithoutEntry) {
  logger.beginGroup("first");
  logger.beginEntry({});
  logger.beginGroup("second");
  EXPECT_EQ(logger.groups.size(), 2U);
  EXPECT_EQ(logger.currentGroup()->name, "second");
  EXPECT_EQ(logger.currentGroupIndex, 1U);
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
  EXPECT_EQ(&logger.currentEntry(), &logger.fallbackEntry);
}

TEST_F(RunReport, EndEntryKeepsTheGroupCurrent) {
  logger.beginGroup("group");
  logger.beginEntry(describe("one"));
  logger.endEntry();
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
  logger.beginEntry(describe("two"));
  EXPECT_EQ(logger.groups[0].entries.size(), 2U);
  EXPECT_EQ(logger.currentEntryIndex, 1U);
  logger.endGroup();
  EXPECT_EQ(logger.currentGroup(), nullptr);
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
}

TEST_F(RunReport, ScopesBeginAndEnd) {
  {
    const GroupScope group(logger, "group");
    {
      const EntryScope entry(logger, describe("entry"));
      EXPECT_EQ(logger.currentEntry().graphName, "entry");
    }
    EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
    EXPECT_EQ(logger.currentGroup()->name, "group");
  }
  EXPECT_EQ(logger.currentGroup(), nullptr);
}

TEST_F(RunReport, StaleIndicesResolveLikeNone) {
  logger.beginGroup("group");
  EXPECT_EQ(&logger.messagesFor(0, 5), &logger.groups[0].messages);
  EXPECT_EQ(&logger.messagesFor(5, 0), &logger.fallbackEntry.messages);
  logger.currentEntryIndex = 5;
  EXPECT_EQ(&logger.currentEntry(), &logger.fallbackEntry);
}

TEST_F(RunReport, FourFlagsDecideAndTheFifthTakesNoPart) {
  logger.beginGroup("group");
  logger.beginEntry({});
  const ReportEntry& entry = logger.currentEntry();
  EXPECT_FALSE(entry.succeeded());
  logger.setInputsSet(true);
  logger.setExecuted(true);
  logger.setOutputsReported(true);
  EXPECT_FALSE(entry.succeeded());
  logger.setWithoutErrors(true);
  EXPECT_TRUE(entry.succeeded());
  EXPECT_FALSE(entry.interrupted);
  logger.setInterrupted(true);
  EXPECT_TRUE(entry.interrupted);
  EXPECT_TRUE(entry.succeeded());
  logger.setExecuted(false);
  EXPECT_FALSE(entry.succeeded());
}

TEST_F(RunReport, GroupFlagsNeedAGroup) {
  logger.setLoaded(true);
  logger.setFinished(true);
  logger.beginGroup("group");
  EXPECT_FALSE(logger.groups[0].loaded);
  EXPECT_FALSE(logger.groups[0].finished);
  logger.setLoaded(true);
  EXPECT_TRUE(logger.groups[0].loaded);
  logger.setFinished(true);
  EXPECT_TRUE(logger.groups[0].finished);
}

TEST_F(RunReport, AnIndexEqualToTheSizeIsOutOfRange) {
  logger.currentGroupIndex = 0;
  EXPECT_EQ(logger.currentGroup(), nullptr);
  logger.beginGroup("group");
  logger.currentEntryIndex = 0;
  EXPECT_EQ(&logger.currentEntry(), &logger.fallbackEntry);
  EXPECT_EQ(&logger.messagesFor(0, 0), &logger.groups[0].messages);
  EXPECT_EQ(&logger.messagesFor(1, 0), &logger.fallbackEntry.messages);
}

TEST_F(RunReport, EachOfTheFourFlagsIsNeeded) {
  for (int missing = 0; missing < 4; ++missing) {
    ReportEntry entry;
    bool* flags[] = {&entry.inputsSet, &entry.executed, &entry.outputsReported,
                     &entry.withoutErrors};
    for (int flag = 0; flag < 4; ++flag) *flags[flag] = flag != missing;
    EXPECT_FALSE(entry.succeeded()) << missing;
    *flags[missing] = true;
    EXPECT_TRUE(entry.succeeded());
  }
}

TEST_F(RunReport, FlagSettersSetAndClearTheirOwnFlag) {
  struct Row {
    void (VtlCmdLogger::*set)(bool) noexcept;
    bool ReportEntry::*flag;
  };
  const Row rows[] = {{&VtlCmdLogger::setInputsSet, &ReportEntry::inputsSet},
                      {&VtlCmdLogger::setExecuted, &ReportEntry::executed},
                      {&VtlCmdLogger::setOutputsReported, &ReportEntry::outputsReported},
                      {&VtlCmdLogger::setWithoutErrors, &ReportEntry::withoutErrors},
                      {&VtlCmdLogger::setInterrupted, &ReportEntry::interrupted}};
  for (const Row& row : rows) {
    for (const bool value : {true, false}) {
      (logger.*row.set)(value);
      for (const Row& other : rows) {
        EXPECT_EQ(logger.currentEntry().*other.flag, value && other.flag == row.flag);
      }
    }
  }
  logger.setLoaded(true);
  logger.beginGroup("group");
  EXPECT_FALSE(logger.groups[0].loaded || logger.groups[0].finished);
  logger.setLoaded(true);
  EXPECT_TRUE(logger.groups[0].loaded && !logger.groups[0].finished);
  logger.setFinished(true);
  logger.setLoaded(false);
  EXPECT_TRUE(!logger.groups[0].loaded && logger.groups[0].finished);
  logger.setFinished(false);
  EXPECT_FALSE(logger.groups[0].finished);
}

TEST_F(RunReport, AnEmptyTextCanBeShown) {
  logger.reportOutputValue("result", "array<int>", "");
  const auto found = logger.fallbackEntry.outputs.find("result");
  ASSERT_NE(found, logger.fallbackEntry.outputs.end());
  EXPECT_TRUE(found->second.valueShown);
}

TEST_F(RunReport, GroupMayEndWithAnEntryOpen) {
  {
    const GroupScope group(logger, "group");
    logger.beginEntry({});
  }
  EXPECT_EQ(logger.currentGroup(), nullptr);
  EXPECT_EQ(logger.currentEntryIndex, VtlCmdLogger::noCurrent);
}

TEST_F(RunReport, EntryStartsWithEveryFlagFalseAndEveryNumberZero) {
  const ReportEntry entry;
  EXPECT_FALSE(entry.inputsSet || entry.executed || entry.outputsReported || entry.withoutErrors ||
               entry.interrupted);
  EXPECT_EQ(entry.frameIndex + entry.frameCount + entry.printLimit + entry.verbosity, 0U);
  EXPECT_EQ(entry.inputCount + entry.outputCount + entry.throughAny, 0U);
}

TEST_F(RunReport, MessagesKeepStaleIndicesUnchanged) {
  logger.currentGroupIndex = 7;
  logger.currentEntryIndex = 9;
  logger.addMessage(vtlcmdSource, levelDebug, "text");
  ASSERT_EQ(logger.messages.size(), 1U);
  EXPECT_EQ(logger.messages[0].groupIndex, 7U);
  EXPECT_EQ(logger.messages[0].entryIndex, 9U);
}

}  // namespace
}  // namespace vtlcmd

#include "execution/message_distribution.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(MessageDistribution, MessagesGoWhereTheyWereAdded) {
  VtlCmdLogger logger(10);
  logger.addMessage(vtlcmdSource, levelError, "nowhere");
  logger.beginGroup("graph");
  logger.addMessage(vtlcmdSource, levelWarning, "group");
  logger.beginEntry({});
  logger.addMessage(vantrelSource, levelError, "first");
  logger.addMessage(vantrelSource, levelError, "second");
  logger.endEntry();
  logger.endGroup();
  distributeMessages(logger);
  const ReportGroup& group = logger.groups.at(0);
  EXPECT_EQ(logger.fallbackEntry.messages,
            (MessagesBySource{{vtlcmdSource, {{levelError, {"nowhere"}}}}}));
  EXPECT_EQ(group.messages, (MessagesBySource{{vtlcmdSource, {{levelWarning, {"group"}}}}}));
  EXPECT_EQ(group.entries.at(0).messages,
            (MessagesBySource{{vantrelSource, {{levelError, {"first", "second"}}}}}));
}

TEST(MessageDistribution, NamesOfSourcesAndLevels) {
  EXPECT_EQ(sourceName(0), "vtlcmd");
  EXPECT_EQ(sourceName(1), "graph");
  EXPECT_EQ(sourceName(513), "513");
  EXPECT_EQ(levelName(0), "none");
  EXPECT_EQ(levelName(6), "debug");
  EXPECT_EQ(levelName(7), "7");
}

}  // namespace
}  // namespace vtlcmd::runner

#include "report/run_report_html.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "report/message_distribution.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string pageOf(VtlCmdLogger& logger) {
  distributeMessages(logger);
  std::ostringstream page;
  writeHtmlReport(page, logger, {"port", "other"});
  return page.str();
}

/// One frame that reports an output and says what is wrong.
void addFrame(VtlCmdLogger& logger, const std::string& frame, bool succeeds) {
  RunDescription description;
  description.frameText = frame;
  description.frameCount = 2;
  description.arguments = {"run", "<graph>"};
  description.inputValues.insert(libraryText("port"), {libraryText("1&2"), libraryText("1&2")});
  const EntryScope entry(logger, description);
  logger.reportOutputValue("values", "array<int>", "(1 int)\n  {\n     min: 1\n  }");
  logger.reportOutputSuppressed("quiet", "double");
  logger.setInputsSet(true);
  logger.setExecuted(true);
  logger.setOutputsReported(true);
  logger.setWithoutErrors(succeeds);
  if (!succeeds) logger.addMessage(vantrelSource, levelError, "no <script>");
}

TEST(RunReportHtml, TellsWhatWasRun) {
  VtlCmdLogger logger(10);
  {
    const GroupScope group(logger, "graph & co");
    addFrame(logger, "1", true);
    logger.setFinished(true);
  }
  const std::string page = pageOf(logger);
  EXPECT_THAT(page, HasSubstr("<h1>graph &amp; co</h1>"));
  EXPECT_THAT(page, HasSubstr("<span class='state succeeded'>succeeded</span>"));
  EXPECT_THAT(page, HasSubstr("<code>vtlcmd run &lt;graph&gt;</code>"));
  EXPECT_THAT(page, HasSubstr("<th scope='row'>port</th><td class='type'>input</td>"
                              "<td><pre>1&amp;2</pre></td>"));
  EXPECT_THAT(page, HasSubstr("<pre>(1 int)\n  {\n     min: 1\n  }</pre>"));
  EXPECT_THAT(page, HasSubstr("not shown"));
  EXPECT_THAT(page, HasSubstr("<details open><summary>Frame 1 "));
  EXPECT_THAT(page, Not(HasSubstr("<svg")));
}

TEST(RunReportHtml, OneFailedFrameFailsTheRun) {
  VtlCmdLogger logger(10);
  {
    const GroupScope group(logger, "graph");
    for (int frame = 1; frame <= 9; ++frame) addFrame(logger, std::to_string(frame), frame < 8);
    logger.setFinished(true);
  }
  const std::string page = pageOf(logger);
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>failed</span>"));
  EXPECT_THAT(page, HasSubstr("<span class='error'>2 errors</span>"));
  EXPECT_THAT(page, HasSubstr("<li class='error'><b>error</b><span class='type'>[graph]</span> "
                              "no &lt;script&gt;</li>"));
  EXPECT_THAT(page, HasSubstr("<details><summary>Frame 7 "));
  EXPECT_THAT(page, HasSubstr("<details open><summary>Frame 8 "));
  EXPECT_THAT(page, HasSubstr("<details><summary>Frame 9 "));
  EXPECT_THAT(page, HasSubstr("<svg"));
}

TEST(RunReportHtml, AnInterruptedRunSaysSo) {
  VtlCmdLogger logger(10);
  const GroupScope group(logger, "graph");
  addFrame(logger, "1", true);
  logger.groups[0].entries[0].interrupted = true;
  EXPECT_THAT(pageOf(logger), HasSubstr("<span class='state interrupted'>interrupted</span>"));
}

TEST(RunReportHtml, AGraphThatCouldNotBeLoadedSaysWhy) {
  VtlCmdLogger logger(10);
  {
    const GroupScope group(logger, "bad.json");
    logger.addMessage(vtlcmdSource, levelCritical, "no graph");
  }
  const std::string page = pageOf(logger);
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>failed</span>"));
  EXPECT_THAT(page, HasSubstr("1 critical message<"));
  EXPECT_THAT(page, HasSubstr("no graph</li>"));
}

}  // namespace
}  // namespace vtlcmd::runner

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "journal/journal_lines.h"
#include "journal/journal_reader.h"
#include "logging/vtlcmd_logger.h"
#include "report/run_report.h"

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string runLine = journalText(
    {line_kinds::run,
     R"({"form":1,"program":"1","graph":"graph & co","graph_file":"g.json","loaded":true,)"
     R"("ports":[{"name":"port","type":"int","job":false}],"outputs":[],"frames":"1-9",)"
     R"("frame_count":9,"key":{"graph":null,"plug_in":null,"files":{},)"
     R"("input_texts":{"port":"1&2"},"job_texts":{},"settings":{"scene_file":"",)"
     R"("secondary_path":"/extra"}}})",
     R"({"arguments":["run","<graph>"],"host":"h","process":1,"attempt":1,"started":"then"})"});

std::string frameLine(std::uint32_t index, bool succeeds) {
  FrameRecord record;
  record.entry.frameIndex = index;
  record.entry.frameText = std::to_string(index + 1);
  record.entry.outputs["values"] = {"array<int>", "(1 int)\n  {\n     min: 1\n  }", true};
  record.entry.outputs["quiet"] = {"double", "", false};
  record.values["quiet"] = std::to_string(index);
  if (!succeeds) {
    record.failure = Failure::permanent;
    record.entry.messages[vantrelSource][levelError] = {"no <script>"};
  }
  return journalText({line_kinds::frame, frameContent(record), frameTimes(record)});
}

std::string endLine(const std::string& outcome, const std::string& messages) {
  return journalText(
      {line_kinds::end,
       R"({"outcome":")" + outcome + R"(","exit_code":1,"messages":)" + messages + "}",
       R"({"ended":"later"})"});
}

std::string pageOf(const std::string& journal, bool withTimes = true) {
  std::istringstream lines(journal);
  std::ostringstream page;
  writeReport(page, {lines, "J"}, {ReportFormat::html, withTimes});
  return page.str();
}

TEST(HtmlReport, TellsWhatWasRun) {
  const std::string page = pageOf(runLine + frameLine(0, true) + endLine("succeeded", "{}"));
  EXPECT_THAT(page, HasSubstr("<h1>graph &amp; co</h1>"));
  EXPECT_THAT(page, HasSubstr("<span class='state succeeded'>succeeded</span>"));
  EXPECT_THAT(page, HasSubstr("1 frame of 9, 1 input, 0 outputs"));
  EXPECT_THAT(page, HasSubstr("<code>vtlcmd run &lt;graph&gt;</code>"));
  EXPECT_THAT(page, HasSubstr("<th scope='row'>port</th><td class='type'>input</td>"
                              "<td><pre>1&amp;2</pre></td>"));
  EXPECT_THAT(page, HasSubstr("<th scope='row'>secondary path</th>"));
  EXPECT_THAT(page, Not(HasSubstr("<th scope='row'>scene</th>")));
  EXPECT_THAT(page, HasSubstr("<pre>(1 int)\n  {\n     min: 1\n  }</pre>"));
  EXPECT_THAT(page, HasSubstr("not shown"));
  EXPECT_THAT(page, HasSubstr("<details open><summary>Frame 1 "));
  EXPECT_THAT(page, Not(HasSubstr("<svg")));
}

TEST(HtmlReport, OneFailedFrameFailsTheRun) {
  std::string journal = runLine;
  for (std::uint32_t i = 0; i < 9; ++i) journal += frameLine(i, i < 7);
  const std::string page = pageOf(journal + endLine("failed", "{}"));
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>failed</span>"));
  EXPECT_THAT(page, HasSubstr("<span class='error'>2 errors</span>"));
  EXPECT_THAT(page, HasSubstr("<li class='error'><b>error</b><span class='type'>[graph]</span> "
                              "no &lt;script&gt;</li>"));
  EXPECT_THAT(page, HasSubstr("<details><summary>Frame 7 "));
  EXPECT_THAT(page, HasSubstr("<details open><summary>Frame 8 "));
  EXPECT_THAT(page, HasSubstr("<details><summary>Frame 9 "));
  EXPECT_THAT(page, HasSubstr("<svg"));
}

TEST(HtmlReport, ARunWithoutItsEndWasCutOff) {
  EXPECT_THAT(pageOf(runLine + frameLine(0, true)),
              HasSubstr("<span class='state failed'>cut off</span>"));
  EXPECT_THAT(pageOf(runLine + endLine("interrupted", "{}")),
              HasSubstr("<span class='state interrupted'>interrupted</span>"));
}

TEST(HtmlReport, AGraphThatCouldNotBeLoadedSaysWhy) {
  const std::string page = pageOf(
      journalText({line_kinds::run,
                   R"({"form":1,"graph":"bad.json","loaded":false,"frame_count":0})", "{}"}) +
      endLine("not loaded", R"({"vtlcmd":{"critical":["no graph"]}})"));
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>not loaded</span>"));
  EXPECT_THAT(page, HasSubstr("1 critical message<"));
  EXPECT_THAT(page, HasSubstr("no graph</li>"));
}

TEST(HtmlReport, TimesCanBeLeftOut) {
  const std::string page = pageOf(runLine + frameLine(0, true) + endLine("succeeded", "{}"), false);
  EXPECT_THAT(page, Not(HasSubstr("&lt;graph&gt;")));
  EXPECT_THAT(page, Not(HasSubstr("then")));
}

TEST(RunReport, AJournalOfAnotherProgramIsRefused) {
  EXPECT_THROW(pageOf(journalText({line_kinds::run, R"({"form":2})", "{}"})), JournalError);
  EXPECT_THROW(pageOf(journalText({line_kinds::run, R"({"form":1})", "{}"})), JournalError);
  EXPECT_THROW(pageOf(journalText({line_kinds::start, "{}", "{}"})), JournalError);
  EXPECT_THROW(pageOf(runLine + journalText({line_kinds::frame, "{}", "{}"})), JournalError);
  EXPECT_THROW(pageOf(runLine.substr(0, 20)), JournalError);
}

}  // namespace
}  // namespace vtlcmd::runner

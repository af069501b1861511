#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "journal/journal_lines.h"
#include "journal/journal_reader.h"
#include "report/run_report.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string runLine = journalText(
    {line_kinds::run,
     R"({"form":1,"program":"1","graph":"graph & co","graph_file":"g.json","loaded":true,)"
     R"("ports":[{"name":"port","type":"int","job":false}],"outputs":[)"
     R"({"name":"values","type":"array<int>"},{"name":"quiet","type":"double"},)"
     R"({"name":"steps","type":"int"}],"frames":"1-9",)"
     R"("frame_count":9,"key":{"graph":null,"plug_in":null,"files":{},)"
     R"("input_texts":{"port":"1&2"},"job_texts":{},"settings":{"scene_file":"",)"
     R"("secondary_path":"/extra"}}})",
     R"({"arguments":["run","<graph>","-s","port=it's"],"host":"h","process":1,"attempt":1,)"
     R"("started":"2026-01-31T23:59:00Z"})"});

std::string frameLine(std::uint32_t index, bool succeeds) {
  FrameRecord record;
  record.entry.frameIndex = index;
  record.frameText = std::to_string(index + 1);
  record.entry.outputs["values"] = {"array<int>", "(1 int)\n  {\n     min: 1\n  }", true};
  record.entry.outputs["quiet"] = {"double", "", false};
  record.values["quiet"] = "0.1";
  record.entry.outputs["steps"] = {"int", index < 2 ? "2" : "9", true};
  record.values["steps"] = std::to_string(index);
  record.entry.messages[vtlcmdSource][levelProgress] = {
      "Output port 'steps': (int) " + std::string(index < 2 ? "2" : "9"), "plain"};
  record.seconds = 0.5;
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
       R"({"ended":"2026-02-01T00:01:05Z"})"});
}

std::string pageOf(const std::string& journal, bool withTimes = true) {
  std::istringstream lines(journal);
  std::ostringstream page;
  Journals journals(lines, "J");
  JournalSurvey survey = surveyJournals(journals);
  if (!withTimes) dropTimes(survey);
  writeReport(page, journals, survey, ReportFormat::html);
  return page.str();
}

TEST(HtmlReport, TellsWhatWasRun) {
  const std::string page = pageOf(runLine + frameLine(0, true) + endLine("succeeded", "{}"));
  EXPECT_THAT(page, HasSubstr("<h1>graph &amp; co</h1>"));
  EXPECT_THAT(page, HasSubstr("<span class='state succeeded'>succeeded</span>"));
  EXPECT_THAT(page, HasSubstr("<dd>1 of 9 frames, 1 input, 3 outputs</dd>"));
  EXPECT_THAT(page, HasSubstr("<dd>2026-01-31 23:59:00 UTC, took 2 min 5 s</dd>"));
  EXPECT_THAT(page, HasSubstr("<dd>h</dd>"));
  EXPECT_THAT(page, HasSubstr("<dd>vtlcmd 1</dd>"));
  EXPECT_THAT(page, HasSubstr("<tr><th scope='row'>port<td class='type'>input<td>"
                              "<pre>1&amp;2</pre>"));
  EXPECT_THAT(page, HasSubstr("<th scope='row'>secondary path"));
  EXPECT_THAT(page, Not(HasSubstr("<th scope='row'>scene")));
  EXPECT_THAT(page, Not(HasSubstr("<svg")));
  EXPECT_THAT(page, HasSubstr("<p class='failed'>Frames missing: 2-9</p>"));
}

TEST(HtmlReport, TheCommandCanBePasted) {
  EXPECT_THAT(pageOf(runLine), HasSubstr("<code>vtlcmd run &#39;&lt;graph&gt;&#39; <span>-s</span> "
                                         "&#39;port=it&#39;\\&#39;&#39;s&#39;</code>"));
}

/// Nine frames, of which the last two fail.
std::string journalOfNine() {
  std::string journal = runLine;
  for (std::uint32_t i = 0; i < 9; ++i) journal += frameLine(i, i < 7);
  return journal + endLine("failed", "{}");
}

TEST(HtmlReport, ProblemsComeFirstAndOnce) {
  const std::string page = pageOf(journalOfNine());
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>failed</span>"));
  EXPECT_THAT(page, HasSubstr("<span class='error'>2 errors</span>"));
  EXPECT_THAT(page, HasSubstr("<p class='failed'>2 frames failed: 8–9</p>"));
  EXPECT_THAT(page, HasSubstr("<tr class='error'><th>8–9<td><b>error</b> "
                              "<span class='type'>[graph]</span><td class='text'>"
                              "no &lt;script&gt;\n"));
  EXPECT_LT(page.find("Problems"), page.find("Outputs"));
}

TEST(HtmlReport, EachOutputStandsOnceInTheOrderOfTheGraph) {
  const std::string page = pageOf(journalOfNine());
  const std::size_t values = page.find("<h3>values <span class='type'>array&lt;int&gt;</span>");
  const std::size_t quiet = page.find("<h3>quiet ");
  const std::size_t steps = page.find("<h3>steps ");
  EXPECT_LT(values, quiet);
  EXPECT_LT(quiet, steps);
  EXPECT_LT(steps, page.size());
  EXPECT_EQ(page.find("<h3>values ", values + 1), std::string::npos);
}

TEST(HtmlReport, AlikeFramesAreFolded) {
  const std::string page = pageOf(journalOfNine());
  // All frames have it, so that it stands without them.
  EXPECT_THAT(page, HasSubstr("\n<pre>(1 int)\n  {\n     min: 1\n  }</pre>\n"));
  EXPECT_THAT(page, HasSubstr("<tr><th>1–2<td><pre>2</pre>\n<tr><th>3–9<td><pre>9</pre>\n"));
  EXPECT_THAT(page, HasSubstr("Shown without a value in frames 1–9"));
}

TEST(HtmlReport, WhatChangesIsPlottedAndTheRestATable) {
  const std::string page = pageOf(journalOfNine());
  EXPECT_THAT(page, HasSubstr("<path class='s0' d='M0 500L125 "));
  EXPECT_THAT(page, HasSubstr("<th scope='col'>value\n<tr><th scope='row'><td>0.1\n"));
}

TEST(HtmlReport, OfOtherMessagesTheOutputsAreLeftOut) {
  const std::string page = pageOf(journalOfNine());
  EXPECT_THAT(page, HasSubstr("<th>1–9<td><b>progress</b> <span class='type'>[vtlcmd]</span>"
                              "<td class='text'>plain\n"));
  EXPECT_THAT(page, Not(HasSubstr("Output port")));
}

TEST(HtmlReport, AnOutputThatAFrameLacksIsSaidSo) {
  FrameRecord record;
  record.entry.frameIndex = 4;
  record.frameText = "5";
  record.entry.interrupted = true;
  record.failure = Failure::transient;
  const std::string page =
      pageOf(runLine + journalText({line_kinds::frame, frameContent(record), frameTimes(record)}));
  EXPECT_THAT(page, HasSubstr("Not reported in frame 5"));
  EXPECT_THAT(page, HasSubstr("<p class='interrupted'>1 frame interrupted: 5</p>"));
}

TEST(HtmlReport, ARunWithoutItsEndWasCutOff) {
  EXPECT_THAT(pageOf(runLine + frameLine(0, true)),
              HasSubstr("<span class='state failed'>cut off</span>"));
  EXPECT_THAT(pageOf(runLine + endLine("interrupted", "{}")),
              HasSubstr("<span class='state interrupted'>interrupted</span>"));
}

TEST(HtmlReport, AGraphThatCouldNotBeLoadedSaysWhy) {
  const std::string page =
      pageOf(journalText({line_kinds::run,
                          R"({"form":1,"program":"1","graph":"bad.json",)"
                          R"("graph_file":"bad.json","loaded":false,"frame_count":0})",
                          R"({"arguments":[],"host":"h","process":1,"attempt":1,)"
                          R"("started":"then"})"}) +
             endLine("not loaded", R"({"vtlcmd":{"critical":["no graph"]}})"));
  EXPECT_THAT(page, HasSubstr("<span class='state failed'>not loaded</span>"));
  EXPECT_THAT(page, HasSubstr("1 critical message<"));
  EXPECT_THAT(page, HasSubstr("no graph\n"));
}

TEST(HtmlReport, TimesCanBeLeftOut) {
  const std::string page = pageOf(runLine + frameLine(0, true) + endLine("succeeded", "{}"), false);
  EXPECT_THAT(page, Not(HasSubstr("&lt;graph&gt;")));
  EXPECT_THAT(page, Not(HasSubstr("2026-")));
  EXPECT_THAT(page, Not(HasSubstr("Durations")));
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

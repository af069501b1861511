#include "report/page_head.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <optional>
#include <ostream>
#include <vector>

#include "report/duration_timeline.h"
#include "report/frame_ranges.h"
#include "report/html_text.h"
#include "text/shell_quoting.h"

namespace vtlcmd::runner {
namespace {

/// So many digits of a hash tell files apart.
constexpr std::size_t shortHash = 12;
constexpr std::size_t mostHosts = 8;
/// Of a time like 2026-01-31T23:59:59Z.
constexpr std::size_t timeLength = 20;

std::string html(const Json& text) { return htmlText(text.get_ref<const std::string&>()); }

void writeFact(std::ostream& page, const char* name, const std::string& content) {
  page << "<div><dt>" << name << "</dt><dd>" << content << "</dd></div>\n";
}

/// Options aren't broken at their dashes.
std::string commandHtml(const Json& arguments) {
  std::string html = "<code>vtlcmd";
  for (const Json& argument : arguments) {
    const std::string word = htmlText(shellQuoted(argument.get_ref<const std::string&>()));
    html += word.starts_with('-') && word.size() < 40 ? " <span>" + word + "</span>" : " " + word;
  }
  return html + "</code>";
}

/// The number in so many digits of a text from a place on; 0 without one.
int numberAt(const std::string& text, std::size_t place, std::size_t digits) {
  int number = 0;
  std::from_chars(text.data() + place, text.data() + place + digits, number);
  return number;
}

/// What a text like 2026-01-31T23:59:59Z says.
std::optional<std::chrono::sys_seconds> timeIn(const Json& json) {
  if (!json.is_string() || json.get_ref<const std::string&>().size() != timeLength)
    return std::nullopt;
  const auto& text = json.get_ref<const std::string&>();
  using namespace std::chrono;
  const year_month_day date(year(numberAt(text, 0, 4)),
                            month(static_cast<unsigned>(numberAt(text, 5, 2))),
                            day(static_cast<unsigned>(numberAt(text, 8, 2))));
  if (!date.ok()) return std::nullopt;
  return sys_days(date) + hours(numberAt(text, 11, 2)) + minutes(numberAt(text, 14, 2)) +
         seconds(numberAt(text, 17, 2));
}

std::string startText(const JournalSurvey& survey) {
  std::string text = html(survey.runTimes.at("started"));
  if (text.size() == timeLength) {
    text.replace(10, 1, " ");
    text.replace(19, 1, " UTC");
  }
  const Json& ended = survey.endTimes.is_object() ? survey.endTimes.value("ended", Json()) : Json();
  const auto begin = timeIn(survey.runTimes.at("started"));
  const auto end = timeIn(ended);
  if (begin && end && *end > *begin)
    text += ", took " + durationText(std::chrono::duration<double>(*end - *begin).count());
  return text;
}

void writeState(std::ostream& page, const JournalSurvey& survey) {
  const std::string state = survey.outcome();
  const bool isKnown = state == "succeeded" || state == "interrupted";
  page << "<p class='summary'><span class='state " << (isKnown ? state : "failed") << "'>"
       << htmlText(state) << "</span>";
  for (const auto& [level, count] : survey.problems) {
    page << " <span class='" << level << "'>"
         << counted(count, level == "critical" ? "critical message" : level) << "</span>";
  }
  page << "</p>\n";
}

/// The machines of the job, each once, from the earliest on.
std::string hostsText(const JournalSurvey& survey) {
  std::vector<std::string> hosts;
  for (const ReportedRun& run : survey.runs) {
    if (std::find(hosts.begin(), hosts.end(), run.host()) == hosts.end())
      hosts.push_back(run.host());
  }
  std::string text;
  for (std::size_t i = 0; i < std::min(hosts.size(), mostHosts); ++i)
    text += (i == 0 ? "" : ", ") + hosts[i];
  if (hosts.size() > mostHosts) text += " and " + groupedDigits(hosts.size() - mostHosts) + " more";
  return text;
}

std::string countsText(const JournalSurvey& survey) {
  std::string text = survey.missing() == 0 ? counted(survey.frames, "frame")
                                           : groupedDigits(survey.frames) + " of " +
                                                 counted(survey.frameCount(), "frame");
  if (survey.failed > 0) text += ", " + groupedDigits(survey.failed) + " failed";
  return text + ", " + counted(survey.run.at("ports").size(), "input") + ", " +
         counted(survey.run.at("outputs").size(), "output");
}

void writeFacts(std::ostream& page, const JournalSurvey& survey) {
  const Json& run = survey.run;
  page << "<dl class='about'>\n";
  if (run.at("loaded")) writeFact(page, "Run", countsText(survey));
  writeFact(page, "Graph", html(run.at("graph_file")));
  if (!survey.runTimes.is_null() && survey.runTimes.contains("started")) {
    writeFact(page, "Started", startText(survey));
    writeFact(page, "Host", htmlText(hostsText(survey)));
  }
  std::string versions = "vtlcmd " + html(run.at("program"));
  const Json plugIn = run.contains("key") ? run["key"].at("plug_in") : Json();
  if (plugIn.is_string())
    versions += ", plug-in <span title='SHA-256 " + html(plugIn) + "'>" +
                html(plugIn).substr(0, shortHash) + "</span>";
  writeFact(page, "Versions", versions);
  page << "</dl>\n";
  if (survey.runTimes.is_null() || !survey.runTimes.contains("arguments")) return;
  page << "<p class='command'>" << commandHtml(survey.runTimes.at("arguments")) << "</p>\n";
  if (survey.runs.size() > 1)
    page << "<p class='none'>The first of " << counted(survey.runs.size(), "run")
         << " of this job</p>\n";
}

void writeRow(std::ostream& page, const std::string& name, const std::string& kind,
              const std::string& text) {
  page << "<tr><th scope='row'>" << htmlText(name) << "<td class='type'>" << kind << "<td><pre>"
       << htmlText(text) << "</pre>\n";
}

void writeTexts(std::ostream& page, const std::string& kind, const Json& texts) {
  for (const auto& [name, text] : texts.items()) writeRow(page, name, kind, text);
}

}  // namespace

void writePageHead(std::ostream& page, const JournalSurvey& survey) {
  page << "<header>\n<h1>" << html(survey.run.at("graph")) << "</h1>\n";
  writeState(page, survey);
  writeFacts(page, survey);
  page << "</header>\n";
}

void writeGivenTexts(std::ostream& page, const JournalSurvey& survey) {
  const Json& key = survey.run.at("key");
  const auto& scene = key.at("settings").at("scene_file").get_ref<const std::string&>();
  const auto& secondary = key.at("settings").at("secondary_path").get_ref<const std::string&>();
  if (key.at("input_texts").empty() && key.at("job_texts").empty() && scene.empty() &&
      secondary.empty())
    return;
  page << "<section><h2>Inputs</h2>\n<table class='inputs'>\n";
  writeTexts(page, "input", key.at("input_texts"));
  writeTexts(page, "job", key.at("job_texts"));
  if (!scene.empty()) writeRow(page, "scene", "", scene);
  if (!secondary.empty()) writeRow(page, "secondary path", "", secondary);
  page << "</table></section>\n";
}

}  // namespace vtlcmd::runner

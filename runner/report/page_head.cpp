#include "report/page_head.h"

#include <chrono>
#include <cstdio>
#include <optional>
#include <ostream>

#include "report/duration_timeline.h"
#include "report/frame_ranges.h"
#include "report/html_text.h"
#include "text/shell_quoting.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

/// So many digits of a hash tell files apart.
constexpr std::size_t shortHash = 12;

std::string html(const Json& text) { return htmlText(text.get_ref<const std::string&>()); }

void writeFact(std::ostream& page, const char* name, const std::string& content) {
  page << "<div><dt>" << name << "</dt><dd>" << content << "</dd></div>\n";
}

std::string commandHtml(const Json& arguments) {
  std::string command = "vtlcmd";
  for (const Json& argument : arguments)
    command += " " + shellQuoted(argument.get_ref<const std::string&>());
  return "<code>" + htmlText(command) + "</code>";
}

/// Seconds since some day of a time like 2026-01-31T23:59:59Z.
std::optional<long long> secondsAt(const Json& time) {
  int year = 0;
  unsigned month = 0, day = 0;
  int hours = 0, minutes = 0, seconds = 0;
  if (!time.is_string() ||
      std::sscanf(time.get_ref<const std::string&>().c_str(), "%d-%u-%uT%d:%d:%dZ", &year, &month,
                  &day, &hours, &minutes, &seconds) != 6)
    return std::nullopt;
  using namespace std::chrono;
  const sys_days date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
  return date.time_since_epoch().count() * 86400LL + hours * 3600 + minutes * 60 + seconds;
}

std::string startText(const JournalSurvey& survey) {
  std::string text = html(survey.runTimes.at("started"));
  if (text.size() == 20) {
    text.replace(10, 1, " ");
    text.replace(19, 1, " UTC");
  }
  const Json& ended = survey.endTimes.is_object() ? survey.endTimes.value("ended", Json()) : Json();
  const auto begin = secondsAt(survey.runTimes.at("started"));
  const auto end = secondsAt(ended);
  if (begin && end && *end > *begin)
    text += ", took " + durationText(static_cast<double>(*end - *begin));
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
    writeFact(page, "Host", html(survey.runTimes.at("host")));
  }
  std::string versions = "vtlcmd " + html(run.at("program"));
  const Json plugIn = run.contains("key") ? run["key"].at("plug_in") : Json();
  if (plugIn.is_string())
    versions += ", plug-in <span title='SHA-256 " + html(plugIn) + "'>" +
                html(plugIn).substr(0, shortHash) + "</span>";
  writeFact(page, "Versions", versions);
  page << "</dl>\n";
  if (!survey.runTimes.is_null() && survey.runTimes.contains("arguments"))
    page << "<p class='command'>" << commandHtml(survey.runTimes.at("arguments")) << "</p>\n";
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

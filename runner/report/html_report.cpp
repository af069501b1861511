#include "report/html_report.h"

#include <charconv>
#include <ostream>

#include "journal/journal_reader.h"
#include "report/html_text.h"
#include "report/output_plots.h"
#include "report/page_style.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

/// So few frames are shown at once.
constexpr std::uint64_t mostOpenFrames = 3;

std::string html(const Json& text) { return htmlText(text.get_ref<const std::string&>()); }

std::string counted(std::uint64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void writeState(std::ostream& page, const JournalSurvey& survey) {
  const std::string state = survey.outcome();
  const bool isKnown = state == "succeeded" || state == "interrupted";
  page << "<p><span class='state " << (isKnown ? state : "failed") << "'>" << htmlText(state)
       << "</span>";
  for (const auto& [level, count] : survey.problems) {
    page << " <span class='" << level << "'>"
         << counted(count, level == "critical" ? "critical message" : level) << "</span>";
  }
  page << "</p>\n";
}

void writeMessages(std::ostream& page, const Json& messages) {
  if (messages.empty()) return;
  page << "<ul class='log'>";
  for (const auto& [source, levels] : messages.items()) {
    for (const auto& [level, texts] : levels.items()) {
      const std::string name = htmlText(level);
      for (const Json& text : texts) {
        page << "<li class='" << name << "'><b>" << name << "</b><span class='type'>["
             << htmlText(source) << "]</span> " << html(text) << "</li>";
      }
    }
  }
  page << "</ul>\n";
}

void writeRow(std::ostream& page, const std::string& name, const std::string& type,
              const std::string& cell) {
  page << "<tr><th scope='row'>" << htmlText(name) << "</th><td class='type'>" << htmlText(type)
       << "</td><td>" << cell << "</td></tr>\n";
}

void writeTexts(std::ostream& page, const std::string& kind, const Json& texts) {
  for (const auto& [name, text] : texts.items())
    writeRow(page, name, kind, "<pre>" + html(text) + "</pre>");
}

void writePath(std::ostream& page, const std::string& name, const Json& path) {
  if (!path.get_ref<const std::string&>().empty()) writeRow(page, name, "", html(path));
}

void writeFacts(std::ostream& page, const JournalSurvey& survey) {
  const Json& run = survey.run;
  page << "<p class='facts'>" << html(run.at("graph_file")) << "<br>\n"
       << counted(survey.frames, "frame");
  if (survey.missing() > 0) page << " of " << survey.frameCount();
  page << ", " << counted(run.at("ports").size(), "input") << ", "
       << counted(run.at("outputs").size(), "output");
  if (!survey.runTimes.is_null()) {
    page << "<br>\n"
         << html(survey.runTimes.at("started")) << " on " << html(survey.runTimes.at("host"))
         << "<br>\n<code>vtlcmd";
    for (const Json& argument : survey.runTimes.at("arguments")) page << ' ' << html(argument);
    page << "</code>";
  }
  page << "</p>\n<table>";
  const Json& key = run.at("key");
  writeTexts(page, "input", key.at("input_texts"));
  writeTexts(page, "job", key.at("job_texts"));
  writePath(page, "scene", key.at("settings").at("scene_file"));
  writePath(page, "secondary path", key.at("settings").at("secondary_path"));
  page << "</table>\n";
}

/// The frame's number; of texts that are none, its place.
double frameNumber(const Json& frame) {
  double number = frame.at("index");
  const auto& text = frame.at("frame").get_ref<const std::string&>();
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

void writePlots(std::ostream& page, const JournalSource& source, const JournalSurvey& survey) {
  if (survey.frames < 2) return;
  OutputPlots plots(survey.frameCount());
  for (JournalReader reader(source.lines, source.name); reader.next();) {
    if (reader.line().kind != line_kinds::frame) continue;
    const Json frame = reader.parse(reader.line().content);
    plots.add(frame.at("index"), frameNumber(frame), frame.at("outputs"));
  }
  if (plots.outputs().empty()) return;
  page << "<h2>Over the frames</h2>\n";
  for (const auto& [name, linePlots] : plots.outputs()) {
    page << "<h3>" << htmlText(name) << "</h3><div class='plots'>\n";
    for (const LinePlot& plot : linePlots) page << linePlotHtml(plot, plots.frames());
    page << "</div>\n";
  }
}

void writeFrame(std::ostream& page, const Json& frame, bool open) {
  const char* state = frame.at("interrupted") ? "interrupted"
                      : frame.at("succeeded") ? "succeeded"
                                              : "failed";
  page << "<details" << (open ? " open" : "") << "><summary>Frame " << html(frame.at("frame"))
       << " <span class='" << state << "'>" << state << "</span></summary>\n";
  page << "<table>";
  for (const auto& [name, output] : frame.at("outputs").items()) {
    writeRow(page, name, output.at("type"),
             output.at("shown") ? "<pre>" + html(output.at("text")) + "</pre>"
                                : "<span class='none'>not shown</span>");
  }
  page << "</table>\n";
  writeMessages(page, frame.at("messages"));
  page << "</details>\n";
}

void writeFrames(std::ostream& page, const JournalSource& source, const JournalSurvey& survey) {
  page << "<h2>Frames</h2>\n";
  bool failureIsOpen = false;
  for (JournalReader reader(source.lines, source.name); reader.next();) {
    if (reader.line().kind != line_kinds::frame) continue;
    const Json frame = reader.parse(reader.line().content);
    const bool isFirstFailure = !failureIsOpen && !frame.at("succeeded");
    failureIsOpen |= isFirstFailure;
    writeFrame(page, frame, survey.frames <= mostOpenFrames || isFirstFailure);
  }
}

}  // namespace

void writeHtmlReport(std::ostream& stream, const JournalSource& source,
                     const JournalSurvey& survey) {
  const std::string title = html(survey.run.at("graph"));
  // Nothing may be loaded or run, whatever a text holds.
  stream << "<!DOCTYPE html>\n<html lang='en'>\n<head>\n<meta charset='utf-8'>\n"
            "<meta http-equiv='Content-Security-Policy' content=\"default-src 'none'; "
            "style-src 'unsafe-inline'\">\n"
            "<meta name='viewport' content='width=device-width'>\n<title>"
         << title << " - vtlcmd</title>\n<style>" << pageStyle << "</style>\n</head>\n<body>\n<h1>"
         << title << "</h1>\n";
  writeState(stream, survey);
  if (survey.run.at("loaded")) writeFacts(stream, survey);
  if (!survey.end.is_null()) writeMessages(stream, survey.end.at("messages"));
  writePlots(stream, source, survey);
  writeFrames(stream, source, survey);
  stream << "</body>\n</html>\n";
}

}  // namespace vtlcmd::runner

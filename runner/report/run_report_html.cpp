#include "report/run_report_html.h"

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>

#include "report/html_text.h"
#include "report/message_distribution.h"
#include "report/output_plots.h"
#include "report/page_style.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// So few frames are shown at once.
constexpr std::size_t mostOpenFrames = 3;

const char* stateOf(const ReportEntry& entry) {
  return entry.interrupted ? "interrupted" : entry.succeeded() ? "succeeded" : "failed";
}

const char* stateOf(const ReportGroup& group) {
  const auto has = [&](auto test) {
    return std::any_of(group.entries.begin(), group.entries.end(), test);
  };
  if (has([](const ReportEntry& entry) { return entry.interrupted; })) return "interrupted";
  const bool failed = has([](const ReportEntry& entry) { return !entry.succeeded(); });
  return group.finished && !failed ? "succeeded" : "failed";
}

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// The critical messages, errors and warnings of a group, by level.
std::map<LogLevel, std::size_t> countProblems(const ReportGroup& group) {
  std::map<LogLevel, std::size_t> counts;
  const auto add = [&](const MessagesBySource& messages) {
    for (const auto& [source, levels] : messages) {
      for (const auto& [level, texts] : levels) {
        if (level >= levelCritical && level <= levelWarning) counts[level] += texts.size();
      }
    }
  };
  add(group.messages);
  for (const ReportEntry& entry : group.entries) add(entry.messages);
  return counts;
}

void writeState(std::ostream& page, const ReportGroup& group) {
  const std::string state = stateOf(group);
  page << "<p><span class='state " << state << "'>" << state << "</span>";
  for (const auto& [level, count] : countProblems(group)) {
    const std::string name = levelName(level);
    page << " <span class='" << name << "'>"
         << counted(count, level == levelCritical ? "critical message" : name) << "</span>";
  }
  page << "</p>\n";
}

void writeMessages(std::ostream& page, const MessagesBySource& messages) {
  if (messages.empty()) return;
  page << "<ul class='log'>";
  for (const auto& [source, levels] : messages) {
    for (const auto& [level, texts] : levels) {
      const std::string name = htmlText(levelName(level));
      for (const std::string& text : texts) {
        page << "<li class='" << name << "'><b>" << name << "</b><span class='type'>["
             << htmlText(sourceName(source)) << "]</span> " << htmlText(text) << "</li>";
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

void writeTexts(std::ostream& page, const std::string& kind, const PortValueMap& texts,
                const std::vector<std::string>& portNames) {
  for (const std::string& name : portNames) {
    const PortValueEntry* entry = texts.find(libraryText(name));
    if (entry == nullptr) continue;
    writeRow(page, name, kind, "<pre>" + htmlText(standardText(entry->text)) + "</pre>");
  }
}

void writeFrame(std::ostream& page, const ReportEntry& entry, bool open) {
  const std::string state = stateOf(entry);
  page << "<details" << (open ? " open" : "") << "><summary>Frame " << htmlText(entry.frameText)
       << " <span class='" << state << "'>" << state << "</span></summary>\n";
  page << "<table>";
  for (const auto& [name, output] : entry.outputs) {
    writeRow(page, name, output.typeName,
             output.valueShown ? "<pre>" + htmlText(output.valueText) + "</pre>"
                               : "<span class='none'>not shown</span>");
  }
  page << "</table>\n";
  writeMessages(page, entry.messages);
  page << "</details>\n";
}

void writePlots(std::ostream& page, const ReportGroup& group) {
  const auto outputs = plotOutputs(group);
  if (outputs.empty()) return;
  page << "<h2>Over the frames</h2>\n";
  for (const auto& [name, plots] : outputs) {
    page << "<h3>" << htmlText(name) << "</h3><div class='plots'>\n";
    for (const LinePlot& plot : plots) page << linePlotHtml(plot);
    page << "</div>\n";
  }
}

void writeSetting(std::ostream& page, const std::vector<std::string>& portNames,
                  const ReportEntry& entry) {
  page << "<p class='facts'><code>" << htmlText(entry.graphFile) << "</code>, "
       << counted(entry.frameCount, "frame") << ", " << counted(entry.inputCount, "port") << ", "
       << counted(entry.outputCount, "output") << "<br>\n<code>vtlcmd";
  for (const std::string& argument : entry.arguments) page << ' ' << htmlText(argument);
  page << "</code></p>\n<table>";
  writeTexts(page, "input", entry.inputValues, portNames);
  writeTexts(page, "job", entry.jobValues, portNames);
  if (!entry.sceneFile.empty()) writeRow(page, "scene", "", htmlText(utf8Path(entry.sceneFile)));
  if (!entry.secondaryPath.empty())
    writeRow(page, "secondary path", "", htmlText(utf8Path(entry.secondaryPath)));
  page << "</table>\n";
}

void writeGroup(std::ostream& page, const ReportGroup& group,
                const std::vector<std::string>& portNames) {
  page << "<h1>" << htmlText(group.name) << "</h1>\n";
  writeState(page, group);
  if (!group.entries.empty()) writeSetting(page, portNames, group.entries.front());
  writeMessages(page, group.messages);
  writePlots(page, group);
  page << "<h2>Frames</h2>\n";
  const auto firstFailed = std::find_if(group.entries.begin(), group.entries.end(),
                                        [](const auto& entry) { return !entry.succeeded(); });
  for (const ReportEntry& entry : group.entries)
    writeFrame(page, entry,
               group.entries.size() <= mostOpenFrames || &entry == std::to_address(firstFailed));
}

}  // namespace

void writeHtmlReport(std::ostream& stream, const VtlCmdLogger& logger,
                     const std::vector<std::string>& portNames) {
  const std::string title = logger.groups.empty() ? "" : logger.groups.front().name;
  // Nothing may be loaded or run, whatever a text holds.
  stream << "<!DOCTYPE html>\n<html lang='en'>\n<head>\n<meta charset='utf-8'>\n"
            "<meta http-equiv='Content-Security-Policy' content=\"default-src 'none'; "
            "style-src 'unsafe-inline'\">\n"
            "<meta name='viewport' content='width=device-width'>\n<title>"
         << htmlText(title) << " - vtlcmd</title>\n<style>" << pageStyle
         << "</style>\n</head>\n<body>\n";
  for (const ReportGroup& group : logger.groups) writeGroup(stream, group, portNames);
  stream << "</body>\n</html>\n";
}

}  // namespace vtlcmd::runner

#include "report/html_report.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "report/duration_timeline.h"
#include "report/frame_reader.h"
#include "report/html_text.h"
#include "report/message_list.h"
#include "report/output_section.h"
#include "report/page_head.h"
#include "report/page_style.h"

namespace vtlcmd::runner {
namespace {

/// For report texts, in bytes, so that a page stays one that a browser opens at once.
constexpr std::size_t roomForTexts = 1'500'000;

/// What a page tells of frames, read in one go.
class FrameSections {
 public:
  FrameSections(Journals& journals, const JournalSurvey& survey)
      : withTimes_(!survey.runTimes.is_null()),
        timeline_(survey.frameCount(), withTimes_ ? survey.runTimes.value("host", "") : "") {
    const Json outputs = survey.run.value("outputs", Json::array());
    const std::size_t room = roomForTexts / std::max<std::size_t>(outputs.size(), 1);
    for (const Json& output : outputs)
      outputs_.emplace_back(output.at("name"), output.at("type"), survey.frameCount(), room);
    if (!survey.end.is_null()) messages_.addOfRun(survey.end.at("messages"));
    for (FrameReader reader(journals, survey); reader.next();) {
      const Json content = reader.parse(reader.line().content);
      Json times = withTimes_ ? reader.parse(reader.line().times) : Json();
      if (withTimes_) times["host"] = reader.run().host();
      add({reader.place(), content.at("frame"), reader.number(), content, times});
    }
  }

  void write(std::ostream& page, const JournalSurvey& survey) const {
    messages_.writeProblems(page, survey.missingFrames());
    if (survey.run.at("loaded")) writeGivenTexts(page, survey);
    if (!outputs_.empty() && survey.frames > 0) {
      page << "<section><h2>Outputs</h2>\n";
      for (const OutputSection& output : outputs_) output.write(page, frames_);
      page << "</section>\n";
    }
    timeline_.write(page, frames_);
    messages_.writeOthers(page);
  }

 private:
  void add(const PageFrame& frame) {
    frames_.add(frame.number);
    messages_.add(frame);
    for (OutputSection& output : outputs_) output.add(frame);
    timeline_.add(frame);
  }

  bool withTimes_;
  FrameRange frames_;
  MessageList messages_;
  std::vector<OutputSection> outputs_;
  DurationTimeline timeline_;
};

}  // namespace

void writeHtmlReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey) {
  const FrameSections sections(journals, survey);
  // Nothing may be loaded or run, whatever a text holds.
  stream << "<!DOCTYPE html>\n<html lang='en'>\n<head>\n<meta charset='utf-8'>\n"
            "<meta http-equiv='Content-Security-Policy' content=\"default-src 'none'; "
            "style-src 'unsafe-inline'\">\n"
            "<meta name='viewport' content='width=device-width, initial-scale=1'>\n<title>"
         << htmlText(survey.run.at("graph").get_ref<const std::string&>())
         << " - vtlcmd</title>\n<style>" << pageStyle << "</style>\n</head>\n<body>\n";
  writePageHead(stream, survey);
  sections.write(stream, survey);
  stream << "</body>\n</html>\n";
}

}  // namespace vtlcmd::runner

#include "report/json_report.h"

#include <ostream>
#include <utility>

#include "report/frame_reader.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

/// The version of the report's form.
constexpr int reportForm = 2;

Json headOf(const JournalSurvey& survey) {
  const Json& end = survey.end;
  const bool hasEnd = !end.is_null();
  Json run = survey.run;
  run.erase("form");
  return {{"form", reportForm},
          {"run", std::move(run)},
          {"outcome", survey.outcome()},
          {"exit_code", hasEnd ? end.at("exit_code") : Json(nullptr)},
          {"totals",
           {{"frames", survey.frames},
            {"failed", survey.failed},
            {"missing", survey.missing()},
            {"graph_errors", survey.graphErrors},
            {"graph_warnings", survey.graphWarnings}}},
          {"missing_frames", survey.missingFrames()},
          {"messages", hasEnd ? end.at("messages") : Json::object()}};
}

/// Without its closing bracket.
std::string opened(std::string object, std::string_view ending) {
  object.resize(object.size() - ending.size());
  return object;
}

Json timesOf(const ReportedRun& run) {
  Json times = parseJson(run.times);
  times["ended"] = run.endTimes.empty() ? Json(nullptr) : parseJson(run.endTimes).at("ended");
  return times;
}

void writeRuns(std::ostream& stream, const std::vector<ReportedRun>& runs) {
  const char* separator = "\n    ";
  for (std::size_t i = 0; i < runs.size(); ++i) {
    // Of copies the first one tells most.
    if (i > 0 && runs[i].number == runs[i - 1].number) continue;
    stream << separator << jsonText(timesOf(runs[i]));
    separator = ",\n    ";
  }
}

/// The frames' lines as they stand in the journals.
void writeFrames(std::ostream& stream, Journals& journals, const JournalSurvey& survey) {
  const char* separator = "\n    ";
  for (FrameReader reader(journals, survey); reader.next();) {
    stream << separator << reader.line().content;
    separator = ",\n    ";
  }
}

void writeFrameTimes(std::ostream& stream, Journals& journals, const JournalSurvey& survey) {
  const char* separator = "\n    ";
  for (FrameReader reader(journals, survey); reader.next();) {
    stream << separator << "{\"run\":" << reader.run().number << ','
           << reader.line().times.substr(1);
    separator = ",\n    ";
  }
}

}  // namespace

void writeJsonReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey) {
  stream << opened(jsonText(headOf(survey), 2), "\n}") << ",\n  \"frames\": [";
  writeFrames(stream, journals, survey);
  stream << "\n  ]";
  if (!survey.runTimes.is_null()) {
    stream << ",\n  \"times\": {\"runs\": [";
    writeRuns(stream, survey.runs);
    stream << "\n  ], \"frames\": [";
    writeFrameTimes(stream, journals, survey);
    stream << "\n  ]}";
  }
  stream << "\n}\n";
}

}  // namespace vtlcmd::runner

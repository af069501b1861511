#include "report/json_report.h"

#include <ostream>
#include <utility>

#include "journal/journal_reader.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

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
          {"messages", hasEnd ? end.at("messages") : Json::object()}};
}

/// A list of one part of each frame's line, as it stands in the journal.
void writeFrames(std::ostream& stream, const JournalSource& source,
                 std::string_view JournalLine::*part) {
  const char* separator = "\n    ";
  stream << '[';
  for (JournalReader reader(source.lines, source.name); reader.next();) {
    if (reader.line().kind != line_kinds::frame) continue;
    stream << separator << reader.line().*part;
    separator = ",\n    ";
  }
  stream << "\n  ]";
}

}  // namespace

void writeJsonReport(std::ostream& stream, const JournalSource& source,
                     const JournalSurvey& survey) {
  std::string head = jsonText(headOf(survey), 2);
  // Open again for what follows.
  head.resize(head.size() - std::string_view("\n}").size());
  stream << head << ",\n  \"frames\": ";
  writeFrames(stream, source, &JournalLine::content);
  if (!survey.runTimes.is_null()) {
    stream << ",\n  \"times\": {\"run\": " << jsonText(survey.runTimes)
           << ", \"end\": " << jsonText(survey.endTimes) << ", \"frames\": ";
    writeFrames(stream, source, &JournalLine::times);
    stream << "}";
  }
  stream << "\n}\n";
}

}  // namespace vtlcmd::runner

#include "report/csv_report.h"

#include <array>
#include <ostream>
#include <set>
#include <unordered_map>

#include "report/flat_value.h"
#include "report/frame_reader.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

constexpr std::array factColumns{
    "index",       "frame",        "succeeded",        "failure",
    "inputs_set",  "executed",     "outputs_reported", "without_errors",
    "interrupted", "graph_errors", "graph_warnings"};
constexpr std::array timeNames{"host", "worker", "attempts", "started", "seconds"};

std::string quoted(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string result = "\"";
  for (const char character : text) {
    if (character == '"') result += '"';
    result += character;
  }
  return result + '"';
}

/// Numbers with all their bits, texts as they are.
std::string cellText(const Json& value) {
  if (value.is_null()) return {};
  return value.is_string() ? quoted(value.get_ref<const std::string&>()) : jsonText(value);
}

/// The columns of outputs: each part that some frame has, in the order of the outputs.
class OutputColumns {
 public:
  explicit OutputColumns(const Json& outputs) {
    for (const Json& output : outputs) outputs_.push_back({output.at("name"), {}, {}});
  }

  void add(const Json& frame) {
    for (Output& output : outputs_) {
      for (const ValuePart& part : partsIn(frame, output)) {
        if (output.columns.emplace(part.place, output.places.size()).second)
          output.places.push_back(part.place);
      }
    }
  }

  /// No name of `taken` and none twice.
  std::vector<std::string> names(std::set<std::string> taken) const {
    std::vector<std::string> names;
    for (const Output& output : outputs_) {
      for (const std::string& place : output.places) {
        std::string name = output.name + (place.empty() ? "" : ".") + place;
        while (!taken.insert(name).second) name += "_";
        names.push_back(name);
      }
    }
    return names;
  }

  void writeCells(std::ostream& stream, const Json& frame) const {
    for (const Output& output : outputs_) {
      std::vector<std::string> cells(output.places.size());
      for (const ValuePart& part : partsIn(frame, output))
        cells[output.columns.at(part.place)] = cellText(*part.part);
      for (const std::string& cell : cells) stream << ',' << cell;
    }
  }

 private:
  struct Output {
    std::string name;
    std::vector<std::string> places;
    std::unordered_map<std::string, std::size_t> columns;
  };

  static std::vector<ValuePart> partsIn(const Json& frame, const Output& output) {
    const Json& outputs = frame.at("outputs");
    const auto found = outputs.find(output.name);
    if (found == outputs.end() || !found->contains("value")) return {};
    return partsOf(found->at("value"), false);
  }

  std::vector<Output> outputs_;
};

template <typename Names>
void writeCells(std::ostream& stream, const Json& object, const Names& names, bool isFirst) {
  for (const char* name : names) {
    if (!isFirst) stream << ',';
    isFirst = false;
    const auto found = object.find(name);
    if (found != object.end()) stream << cellText(*found);
  }
}

void writeHead(std::ostream& stream, const OutputColumns& columns, bool withTimes) {
  std::vector<std::string> names(factColumns.begin(), factColumns.end());
  if (withTimes) names.insert(names.end(), timeNames.begin(), timeNames.end());
  for (const std::string& name : columns.names({names.begin(), names.end()}))
    names.push_back(quoted(name));
  const char* separator = "";
  for (const std::string& name : names) {
    stream << separator << name;
    separator = ",";
  }
  stream << "\r\n";
}

}  // namespace

void writeCsvReport(std::ostream& stream, Journals& journals, const JournalSurvey& survey) {
  OutputColumns columns(survey.run.value("outputs", Json::array()));
  for (FrameReader reader(journals, survey); reader.next();)
    columns.add(reader.parse(reader.line().content));
  const bool withTimes = !survey.runTimes.is_null();
  writeHead(stream, columns, withTimes);
  for (FrameReader reader(journals, survey); reader.next();) {
    const Json frame = reader.parse(reader.line().content);
    writeCells(stream, frame, factColumns, true);
    if (withTimes) {
      Json times = reader.parse(reader.line().times);
      times["host"] = reader.run().host();
      writeCells(stream, times, timeNames, false);
    }
    columns.writeCells(stream, frame);
    stream << "\r\n";
  }
}

}  // namespace vtlcmd::runner

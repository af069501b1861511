#include "report/journal_survey.h"

#include "journal/journal_reader.h"

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

void countProblems(std::map<std::string, std::uint64_t>& problems, const Json& messages) {
  for (const auto& [source, levels] : messages.items()) {
    for (const char* level : {"critical", "error", "warning"}) {
      if (levels.contains(level)) problems[level] += levels[level].size();
    }
  }
}

void addFrame(JournalSurvey& survey, const Json& frame) {
  ++survey.frames;
  if (!frame.at("succeeded").get<bool>()) ++survey.failed;
  survey.graphErrors += frame.at("graph_errors").get<std::uint64_t>();
  survey.graphWarnings += frame.at("graph_warnings").get<std::uint64_t>();
  countProblems(survey.problems, frame.at("messages"));
}

/// The report of a part of a job is one of the job.
void describeJob(Json& run) {
  for (const std::string name : {"frames", "frame_count"}) {
    const auto ofJob = run.find("job_" + name);
    if (ofJob == run.end()) continue;
    run[name] = *ofJob;
    run.erase("job_" + name);
  }
}

}  // namespace

std::uint64_t JournalSurvey::frameCount() const { return run.at("frame_count"); }

std::string JournalSurvey::outcome() const {
  return end.is_null() ? "cut off" : end.at("outcome").get<std::string>();
}

JournalSurvey surveyJournal(const JournalSource& source) {
  JournalReader reader(source.lines, source.name);
  JournalSurvey survey;
  if (!reader.next()) throw JournalError(source.name + " holds no run: it ends in its first line");
  if (reader.line().kind != line_kinds::run) reader.fail();
  survey.run = reader.parse(reader.line().content);
  describeJob(survey.run);
  survey.runTimes = reader.parse(reader.line().times);
  if (survey.run.value("form", 0) != journalForm)
    throw JournalError(source.name + " has a form that this program doesn't know");
  while (reader.next()) {
    try {
      const std::string_view kind = reader.line().kind;
      if (kind == line_kinds::frame) {
        addFrame(survey, reader.parse(reader.line().content));
      } else if (kind == line_kinds::end) {
        survey.end = reader.parse(reader.line().content);
        survey.endTimes = reader.parse(reader.line().times);
        countProblems(survey.problems, survey.end.at("messages"));
      }
    } catch (const Json::exception&) {
      reader.fail();
    }
  }
  return survey;
}

}  // namespace vtlcmd::runner

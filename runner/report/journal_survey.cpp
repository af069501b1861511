#include "report/journal_survey.h"

#include <utility>

#include "execution/frame_list_text.h"
#include "execution/frame_list_writer.h"
#include "journal/journal_reader.h"
#include "report/job_end.h"

namespace vtlcmd::runner {
namespace {

/// The line's content, in which the report of a part of a job is one of the job.
Json firstRun(Journals& journals, const ReportedRun& first, const Job& job) {
  std::string text;
  journals.readLine(first.journal, first.offset, text);
  const std::optional<JournalLine> line = parseJournalText(text);
  if (!line) throw JournalError(journals.name(first.journal) + " changed while it was read");
  Json run = parseJson(line->content);
  if (run.at("loaded")) {
    run["frames"] = job.framesText();
    run["frame_count"] = job.size();
  }
  run.erase("job_frames");
  run.erase("job_frame_count");
  return run;
}

void count(JournalSurvey& survey, const FrameEntry& entry) {
  if (entry.isThere == 0) return;
  ++survey.frames;
  if (!entry.succeeded()) ++survey.failed;
  survey.graphErrors += entry.graphErrors;
  survey.graphWarnings += entry.graphWarnings;
  for (std::size_t level = 0; level < problemLevels.size(); ++level) {
    if (entry.problems[level] > 0)
      survey.problems[std::string(problemLevels[level])] += entry.problems[level];
  }
}

void countMessages(JournalSurvey& survey, const Json& messages) {
  for (const auto& [source, levels] : messages.items()) {
    for (const std::string_view name : problemLevels) {
      const std::string level(name);
      if (levels.contains(level)) survey.problems[level] += levels[level].size();
    }
  }
}

JournalSurvey surveyOf(Journals& journals) {
  ReportedRuns reported = readRuns(journals);
  JournalSurvey survey;
  survey.runs = std::move(reported.runs);
  survey.job = Job(std::move(reported.jobTexts));
  survey.entries = readEntries(journals, survey.runs, survey.job);
  const ReportedRun& first = survey.runs.front();
  survey.run = firstRun(journals, first, survey.job);
  survey.runTimes = parseJson(first.times);
  if (!first.endTimes.empty()) survey.endTimes = parseJson(first.endTimes);
  survey.end = endOfJob(survey.runs, survey.entries);
  for (const FrameEntry& entry : survey.entries) count(survey, entry);
  if (!survey.end.is_null()) countMessages(survey, survey.end.at("messages"));
  return survey;
}

}  // namespace

std::string JournalSurvey::missingFrames() const {
  std::vector<double> numbers;
  for (std::size_t place = 0; place < job.size(); ++place) {
    if (entries[job.indexAt(place)].isThere == 0) numbers.push_back(job.frameAt(place));
  }
  return exactFramesText(numbers);
}

std::string JournalSurvey::outcome() const {
  return end.is_null() ? "cut off" : end.at("outcome").get<std::string>();
}

JournalSurvey surveyJournals(Journals& journals) {
  try {
    return surveyOf(journals);
  } catch (const Json::exception&) {
    throw JournalError(journals.name(0) + " lacks something that journals have");
  } catch (const FrameListError& error) {
    throw JournalError(journals.name(0) + ": " + error.what());
  }
}

}  // namespace vtlcmd::runner

#include "report/job_end.h"

#include <algorithm>
#include <string>

#include "execution/exit_code.h"

namespace vtlcmd::runner {
namespace {

/// By run, from the earliest to the latest; null of runs that were cut off.
std::vector<Json> endsOf(const std::vector<ReportedRun>& runs) {
  std::vector<Json> ends;
  for (const ReportedRun& run : runs) {
    // Of copies the first one tells most.
    if (run.number < ends.size()) continue;
    ends.push_back(run.end.empty() ? Json(nullptr) : parseJson(run.end));
  }
  return ends;
}

/// Those of all runs, one behind the other.
Json messagesOf(const std::vector<Json>& ends) {
  Json messages = Json::object();
  for (const Json& end : ends) {
    if (end.is_null()) continue;
    for (const auto& [source, levels] : end.at("messages").items()) {
      for (const auto& [level, texts] : levels.items()) {
        for (const Json& text : texts) messages[source][level].push_back(text);
      }
    }
  }
  return messages;
}

bool isFinished(const Json& end) {
  return !end.is_null() && (end.at("outcome") == "succeeded" || end.at("outcome") == "failed");
}

}  // namespace

Json endOfJob(const std::vector<ReportedRun>& runs, const std::vector<FrameEntry>& entries) {
  const std::vector<Json> ends = endsOf(runs);
  if (ends.size() == 1) return ends.front();
  Json messages = messagesOf(ends);
  const bool isWhole = std::all_of(entries.begin(), entries.end(), [](const FrameEntry& entry) {
    return entry.isThere != 0 && entry.interrupted == 0;
  });
  if (!isWhole) {
    const auto unfinished = std::find_if_not(ends.rbegin(), ends.rend(),
                                             [](const Json& end) { return isFinished(end); });
    if (unfinished == ends.rend() || unfinished->is_null()) return nullptr;
    Json result = *unfinished;
    result["messages"] = std::move(messages);
    return result;
  }
  std::uint64_t failure = 0;
  for (const FrameEntry& entry : entries) failure = std::max<std::uint64_t>(failure, entry.failure);
  const auto worst = static_cast<Failure>(failure);
  return {{"outcome", worst == Failure::none ? "succeeded" : "failed"},
          {"exit_code", static_cast<int>(exitCodeOf(worst))},
          {"messages", std::move(messages)}};
}

}  // namespace vtlcmd::runner

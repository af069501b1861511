#include <CLI/App.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "command_line/commands.h"
#include "command_line/farm_jobs.h"
#include "command_line/option_values.h"
#include "execution/frame_list_writer.h"
#include "farm/frame_survey.h"
#include "farm/submission.h"
#include "text/control_characters.h"
#include "text/json.h"
#include "text/json_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* statusFooter = R"(Examples:
  vtlcmd status /farm/scatter
  vtlcmd status /farm/scatter --json | jq .failed.frames

All of it is read from the folder's files, wherever the job runs or has run. A
frame that was begun and isn't finished counts as started, though the machine
that had begun it may be gone.
)";

struct Group {
  const char* name;
  std::size_t count;
  std::string frames;
};

std::vector<Group> groupsOf(const FarmFolder& folder, const std::vector<double>& frames) {
  const std::vector<FrameState> states = surveyFrames(folder, frames.size());
  const auto group = [&](const char* name, FrameState first, FrameState last) {
    std::vector<double> members;
    for (std::size_t i = 0; i < frames.size(); ++i) {
      if (states[i] >= first && states[i] <= last) members.push_back(frames[i]);
    }
    return Group{name, members.size(), plainFramesText(members)};
  };
  return {group("done", FrameState::done, FrameState::done),
          group("failed", FrameState::failedForNow, FrameState::failed),
          group("started", FrameState::started, FrameState::started),
          group("missing", FrameState::missing, FrameState::missing)};
}

Json submissionsOf(const FarmFolder& folder) {
  Json submissions = Json::array();
  for (std::size_t i = 1; i <= folder.submissions(); ++i) {
    const SubmittedJobs jobs = readSubmittedJobs(folder, i);
    const std::optional<int> code = reportedCode(folder, i);
    submissions.push_back({{"tasks_job", jobs.tasks},
                           {"report_job", jobs.report},
                           {"reported", code ? Json(*code) : Json(nullptr)}});
  }
  return submissions;
}

void printStatusJson(const FarmFolder& folder, const FarmJob& job,
                     const std::vector<double>& frames) {
  Json document{{"form", 1},
                {"graph_file", job.graph},
                {"frames", job.frames},
                {"frame_count", frames.size()}};
  for (const Group& group : groupsOf(folder, frames))
    document[group.name] = {{"count", group.count}, {"frames", group.frames}};
  document["submissions"] = submissionsOf(folder);
  std::cout << jsonText(document, 2) << '\n';
}

void printStatusText(const FarmFolder& folder, const FarmJob& job,
                     const std::vector<double>& frames) {
  std::cout << withoutControls(job.graph, "") << ", frames " << job.frames << '\n';
  for (const Group& group : groupsOf(folder, frames)) {
    std::cout << group.name << std::string(9 - std::string_view(group.name).size(), ' ')
              << group.count;
    if (group.count > 0 && group.count < frames.size()) std::cout << ": " << group.frames;
    std::cout << '\n';
  }
  for (std::size_t i = 1; i <= folder.submissions(); ++i) {
    const SubmittedJobs jobs = readSubmittedJobs(folder, i);
    std::cout << "jobs " << jobs.tasks << " and " << jobs.report
              << (reportedCode(folder, i) ? ", reported\n" : ", not reported yet\n");
  }
}

}  // namespace

void addStatusCommand(CLI::App& app) {
  struct Options {
    std::string folder;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command =
      app.add_subcommand("status", "Tell how far a job on a farm is, by its folder alone");
  command->footer(statusFooter);
  command->add_option("FOLDER", options->folder, "Folder that 'vtlcmd submit' made")
      ->required()
      ->type_name("");
  command->add_flag("--json", options->json, "Print a JSON document");
  command->callback([options] {
    const FarmFolder folder = farmFolder(options->folder);
    const FarmJob job = readFarmJob(folder);
    (options->json ? printStatusJson : printStatusText)(folder, job,
                                                        parseFrames(job.frames).numbers());
  });
}

}  // namespace vtlcmd::runner

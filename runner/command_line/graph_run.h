#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "command_line/frame_options.h"
#include "command_line/output_targets.h"
#include "command_line/run_options.h"
#include "command_line/run_reports.h"
#include "execution/exit_code.h"
#include "execution/plug_in.h"
#include "graph/path_sources.h"
#include "saving/output_saver.h"
#include "workers/worker_messages.h"

namespace vtlcmd::runner {

/// What a run needs, found and checked.
struct LoadedRun {
  Graph graph;
  TextsByPort texts;
  /// The files that some of them came from.
  std::vector<std::filesystem::path> textFiles;
  RunSettings settings;
  FrameSettings frames;
  std::vector<SavedOutput> saves;
  std::filesystem::path plugInFile;
  std::unique_ptr<PlugIn> plugIn;
};

/// Throws UsageError and LoadError.
LoadedRun loadRun(const RunOptions& options, const std::vector<std::string>& arguments);

/// What a worker process of the run is told of it.
WorkerTask taskOf(const LoadedRun& loaded);

/// The same run in that process. Throws what the other one throws.
LoadedRun loadRunInWorker(RunOptions options, const WorkerTask& task);

/// Whatever a run writes must leave what it reads as it is. Throws UsageError.
OutputTargets refuseTargets(const RunOptions& options,
                            std::vector<std::filesystem::path> filesRead);

/// Runs a graph: prints what comes, keeps the journal and makes the reports of it. Says on standard
/// error what went wrong with these. Throws UsageError for files that can't be written.
ExitCode runGraph(const LoadedRun& loaded, const RunOptions& options, RunReports& reports);

/// The reports of a run that never began. Throws OutputError.
void reportLoadFailure(const std::string& graph, const std::vector<std::string>& arguments,
                       const RunReports& reports, const std::string& text);

}  // namespace vtlcmd::runner

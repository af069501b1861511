#pragma once

#include <optional>
#include <string>
#include <vector>

#include "command_line/frame_options.h"
#include "command_line/port_texts.h"
#include "command_line/read_options.h"
#include "command_line/report_options.h"
#include "execution/session.h"
#include "graph/graph.h"

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// What the command line of `run` says, as it stands there.
struct RunOptions {
  std::string graph;
  std::vector<std::string> inputs;
  std::vector<std::string> jobs;
  std::vector<std::string> files;
  std::string frames = "1";
  /// Nothing: the frames are the whole job.
  std::optional<std::string> jobFrames;
  std::string framesPerSecond = "24";
  std::string scene;
  std::string secondary;
  bool strict = false;
  std::vector<std::string> only;
  std::vector<std::string> saves;
  std::string elements = "0";
  std::vector<std::string> reports;
  std::optional<std::string> pictures;
  bool noTimes = false;
  std::optional<std::string> journal;
  bool restart = false;
  bool resume = false;
  /// Nothing: on a terminal.
  std::optional<bool> progress;
  FrameOptions frameOptions;
  ReadOptions read;
  ReportOptions report;
};

/// Adds them to the command; they must outlive the parse.
void addRunOptions(CLI::App& command, RunOptions& options);

/// Those of a command line that was read before, without the program's name.
RunOptions runOptionsFrom(const std::vector<std::string>& words);

/// The texts that the options give to the graph's ports. Throws UsageError.
PortTexts textsFrom(const RunOptions& options, const Graph& graph);

/// Leaves only the outputs in a graph that the options want. Throws UsageError for a name that is
/// no output's, and for an output that is left out but to be saved.
void selectOutputs(const RunOptions& options, Graph& graph);

/// Throws UsageError.
RunSettings settingsFrom(const RunOptions& options, const PortTexts& texts,
                         std::vector<std::string> arguments);

}  // namespace vtlcmd::runner

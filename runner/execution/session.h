#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "execution/executor.h"
#include "execution/frame_list.h"
#include "execution/frame_record.h"
#include "execution/output_reporting.h"
#include "execution/plug_in.h"
#include "graph/graph.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// More than an array can have.
inline constexpr std::uint64_t allElements = std::numeric_limits<std::uint64_t>::max();

/// Keeps an output's values elsewhere.
struct OutputSave {
  std::string output;
  /// Takes the value of a frame and, by `fileIdentity`, the files read so far whose names weren't
  /// known before the run. Gives what a user should know of it, empty for nothing. What it throws
  /// fails the frame.
  std::function<std::string(double frame, const Orvel::Value& value,
                            const std::set<std::filesystem::path>& filesRead)>
      save;
};

/// What a user asks of a run.
struct RunSettings {
  std::filesystem::path graphFile;
  std::vector<std::string> arguments;
  PortValueMap inputValues;
  PortValueMap jobValues;
  /// Those that are known before the run.
  std::vector<std::filesystem::path> filesRead;
  /// Not empty.
  FrameList frames;
  /// As the user gave them.
  std::string framesText;
  /// Those of the job that this run is a part of; empty when it is the whole.
  std::string jobFramesText;
  double framesPerSecond = 24;
  HostPath sceneFile;
  HostPath secondaryPath;
  std::uint32_t verbosity = levelProgress;
  OutputForm outputForm = OutputForm::value;
  /// A warning fails the run too.
  bool strict = false;
  /// The records of frames have their messages and the outputs' exact values, for reports.
  bool recordFrames = false;
  /// So many of each array stand in its exact value; `allElements` of them for all.
  std::uint64_t elements = 0;
  std::vector<OutputSave> saves;
  /// The frames whose records have pictures too; nothing for the last one of the job.
  std::optional<FrameList> pictureFrames;
};

/// Runs frames of a graph, in one group with one entry a frame.
class Session {
 public:
  /// Everything handed over must outlive the session.
  Session(const Graph& graph, const PlugIn::Translation& translation, const RunSettings& settings,
          VtlCmdLogger& logger);

  /// Runs the frame at a place of the settings' frames. The logger holds its messages, and those of
  /// no other frame, until the next one.
  FrameRecord run(std::size_t place);

 private:
  struct Port {
    Orvel::String name;
    Orvel::Type type;
    Any defaultValue;
  };

  void describeFrame(std::size_t place);
  FrameRecord runFrame();
  /// Whether every port has a value.
  bool setInputs();
  std::optional<Orvel::Value> setInput(std::size_t index);
  void reportOutputs(const std::vector<Orvel::Value>& values, FrameRecord& record);
  void saveOutputs(const std::vector<Orvel::Value>& values);
  void save(const OutputSave& saving, const Orvel::Value& value);
  /// Tells of the exception that is being handled.
  void noteFailure(const std::string& what);
  void noteRead(const std::filesystem::path& file);
  Failure failureOfFrame() const;
  /// Whether the current frame's record has pictures.
  bool isPictured() const;
  void recordPictures(const std::vector<Orvel::Value>& values, FrameRecord& record);
  bool hasMessageUpTo(LogLevel level) const;

  const Graph& graph_;
  const PlugIn::Translation& translation_;
  const RunSettings& settings_;
  VtlCmdLogger& logger_;
  GroupScope group_;
  Executor executor_;
  RunContext context_;
  /// Of the current frame; what all frames share isn't repeated for each.
  RunDescription description_;
  std::vector<Port> ports_;
  /// By output.
  std::vector<Orvel::String> outputNames_;
  /// Of the current frame, by port; some are missing when setting them failed.
  std::vector<Orvel::Value> inputs_;
  /// The worst of what was caught in the current frame.
  Failure failure_ = Failure::none;
  /// By the current frame, of those that weren't known before the run.
  std::set<std::filesystem::path> filesRead_;
  /// The same by all frames so far, by `fileIdentity`.
  std::set<std::filesystem::path> allFilesRead_;
  /// What pictures of the current frame took, which is no work of the graph's.
  std::chrono::steady_clock::duration picturing_{};
};

}  // namespace vtlcmd::runner

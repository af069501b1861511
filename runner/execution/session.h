#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "execution/executor.h"
#include "execution/frame_list.h"
#include "execution/output_reporting.h"
#include "execution/plug_in.h"
#include "graph/graph.h"
#include "host/host_records.h"
#include "host/port_value_map.h"
#include "logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// What a user asks of a run.
struct RunSettings {
  std::filesystem::path graphFile;
  std::vector<std::string> arguments;
  PortValueMap inputValues;
  PortValueMap jobValues;
  /// Not empty.
  FrameList frames;
  double framesPerSecond = 24;
  HostPath sceneFile;
  HostPath secondaryPath;
  std::uint32_t verbosity = levelProgress;
  OutputForm outputForm = OutputForm::value;
  /// A warning fails the run too.
  bool strict = false;
};

enum class RunOutcome { succeeded, failed, interrupted };

/// Runs a graph once a frame, in one group with one entry a frame.
class Session {
 public:
  /// Everything handed over must outlive the session.
  Session(const Graph& graph, const PlugIn::Translation& translation, const RunSettings& settings,
          VtlCmdLogger& logger);

  /// Runs the frames in order; a failed frame doesn't keep the others from running, an interrupt
  /// does. Calls `beforeFrame` with the frame's index and `afterFrame`.
  RunOutcome run(const std::function<void(std::size_t)>& beforeFrame,
                 const std::function<void()>& afterFrame);

 private:
  struct Port {
    Orvel::String name;
    Orvel::Type type;
    Any defaultValue;
  };

  RunDescription describe(std::size_t frameIndex) const;
  bool runFrame(double frame);
  std::optional<std::vector<Orvel::Value>> setInputs();
  std::optional<Orvel::Value> setInput(std::size_t index);
  void reportOutputs(const std::vector<Orvel::Value>& values);
  bool hasMessageUpTo(LogLevel level, std::size_t firstMessage) const;

  const Graph& graph_;
  const PlugIn::Translation& translation_;
  const RunSettings& settings_;
  VtlCmdLogger& logger_;
  Executor executor_;
  RunContext context_;
  std::vector<Port> ports_;
};

}  // namespace vtlcmd::runner

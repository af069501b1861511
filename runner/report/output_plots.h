#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "report/line_plot.h"

namespace vtlcmd::runner {

/// Collects the numbers of outputs over the frames of a run, from their exact values: numbers, the
/// components of vectors, sizes of components and statistics of arrays, alone and in objects.
class OutputPlots {
 public:
  /// `frameCount` frames at most are added.
  explicit OutputPlots(std::uint64_t frameCount);

  /// The outputs of a frame as its journal line has them; `index` is below the count.
  void add(std::uint64_t index, double frame, const nlohmann::ordered_json& outputs);

  /// By the output's name; an output without numbers has no row.
  const std::map<std::string, std::vector<LinePlot>>& outputs() const noexcept { return outputs_; }

  /// Of all frames that were added.
  const FrameRange& frames() const noexcept { return frames_; }

 private:
  std::uint64_t stretch_;
  FrameRange frames_;
  std::map<std::string, std::vector<LinePlot>> outputs_;
};

}  // namespace vtlcmd::runner

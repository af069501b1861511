#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vtlcmd::runner {

struct PlotSeries {
  std::string name;
  /// One a frame; nothing where the frame has no number.
  std::vector<std::optional<double>> values;
};

struct LinePlot {
  std::string title;
  /// As many as each series has values, all finite.
  std::vector<double> frames;
  std::vector<PlotSeries> series;
};

/// The plot as an inline `figure` with a picture of lines over frames. Values that aren't finite
/// leave gaps. Long series keep the extremes of each stretch, so no peak is lost. Series are styled
/// by the classes `s0` to `s3`, in turn.
std::string linePlotHtml(const LinePlot& plot);

}  // namespace vtlcmd::runner

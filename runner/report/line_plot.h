#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace vtlcmd::runner {

struct PlotPoint {
  /// Points of one stretch of frames lie at one place of the picture, as far as can be seen.
  std::uint64_t stretch = 0;
  double frame = 0;
  /// Finite.
  double value = 0;
};

struct PlotSeries {
  std::string name;
  /// In the order of frames, of each stretch at most two: its lowest and its highest.
  std::vector<PlotPoint> points;

  /// The next point. Of a stretch with more the extremes stay, so no peak is lost.
  void add(const PlotPoint& point);
};

/// The lowest and the highest frame of a run.
struct FrameRange {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void add(double frame) {
    low = std::min(low, frame);
    high = std::max(high, frame);
  }
};

struct LinePlot {
  std::string title;
  std::vector<PlotSeries> series;
};

/// The plot as an inline `figure` with a picture of lines over all frames of the range. Stretches
/// without a point leave gaps. Series are styled by the classes `s0` to `s3`, in turn.
std::string linePlotHtml(const LinePlot& plot, const FrameRange& frames);

}  // namespace vtlcmd::runner

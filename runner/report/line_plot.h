#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "report/axis.h"

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
  /// No frame has a fraction.
  bool isWhole = true;

  void add(double frame) {
    low = std::min(low, frame);
    high = std::max(high, frame);
    isWhole &= frame == std::floor(frame);
  }

  Axis axis() const { return Axis::exact(low, high, 6, isWhole); }
};

struct LinePlot {
  std::string title;
  std::vector<PlotSeries> series;
};

/// The plot as an inline `figure` with a picture of lines over all frames of the range. Stretches
/// without a point leave gaps. Series are styled by the classes `s0` to `s3`, in turn, but "min",
/// "max" and "avg" by these names, with a band between the first two.
std::string linePlotHtml(const LinePlot& plot, const FrameRange& frames);

/// The labels of an axis as elements that are placed by the share of a length, from the left or the
/// top. `isDown`: the low end is on top.
std::string bottomLabelsHtml(const Axis& axis);
std::string leftLabelsHtml(const Axis& axis, bool isDown = false);

}  // namespace vtlcmd::runner

#include "report/line_plot.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

#include "report/html_text.h"

namespace vtlcmd::runner {
namespace {

// In units of the picture's own coordinates.
constexpr double width = 320;
constexpr double height = 120;
constexpr std::size_t styles = 4;

std::string shortText(double number, int digits) {
  std::array<char, 32> text;
  const auto result = std::to_chars(text.data(), text.data() + text.size(), number,
                                    std::chars_format::general, digits);
  return {text.data(), result.ptr};
}

class Range {
 public:
  void add(double number) {
    low_ = std::min(low_, number);
    high_ = std::max(high_, number);
  }
  double low() const { return low_; }
  double high() const { return high_; }

  /// Where a number of the range lies between 0 and 1. Halves keep the widest range finite.
  double share(double number) const {
    const double span = high_ / 2 - low_ / 2;
    return span > 0 ? (number / 2 - low_ / 2) / span : 0.5;
  }

 private:
  double low_ = std::numeric_limits<double>::infinity();
  double high_ = -std::numeric_limits<double>::infinity();
};

std::string pathData(const PlotSeries& series, const Range& x, const Range& y) {
  std::string data;
  const PlotPoint* before = nullptr;
  for (const PlotPoint& point : series.points) {
    const bool isConnected = before != nullptr && point.stretch - before->stretch <= 1;
    data += isConnected ? "L" : "M";
    data += shortText(x.share(point.frame) * width, 5) + " " +
            shortText((1 - y.share(point.value)) * height, 5);
    // A line of no length is drawn as a dot, so that a value between gaps is seen.
    if (!isConnected) data += "h0";
    before = &point;
  }
  return data;
}

std::string styleOf(std::size_t series) { return "s" + std::to_string(series % styles); }

std::string pictureHtml(const LinePlot& plot, const Range& x, const Range& y) {
  std::string html = "<svg viewBox='-4 -4 " + shortText(width + 8, 5) + " " +
                     shortText(height + 8, 5) + "' role='img' aria-label='" + htmlText(plot.title) +
                     " over frames'>";
  html += "<path class='frame' d='M0 0V" + shortText(height, 5) + "H" + shortText(width, 5) + "'/>";
  for (std::size_t i = 0; i < plot.series.size(); ++i) {
    html += "<path class='" + styleOf(i) + "' d='" + pathData(plot.series[i], x, y) + "'><title>" +
            htmlText(plot.series[i].name) + "</title></path>";
  }
  return html + "</svg>";
}

}  // namespace

void PlotSeries::add(const PlotPoint& point) {
  const bool isNew = points.empty() || points.back().stretch != point.stretch;
  const bool isSecond =
      !isNew && (points.size() == 1 || points[points.size() - 2].stretch != point.stretch);
  if (isNew || isSecond) {
    points.push_back(point);
    return;
  }
  PlotPoint& earlier = points[points.size() - 2];
  PlotPoint& later = points.back();
  PlotPoint& lowest = earlier.value <= later.value ? earlier : later;
  PlotPoint& highest = earlier.value <= later.value ? later : earlier;
  if (point.value >= lowest.value && point.value <= highest.value) return;
  const bool replacesEarlier = &(point.value < lowest.value ? lowest : highest) == &earlier;
  if (replacesEarlier) earlier = later;
  later = point;
}

std::string linePlotHtml(const LinePlot& plot, const FrameRange& frames) {
  Range x;
  x.add(frames.low);
  x.add(frames.high);
  Range y;
  for (const PlotSeries& series : plot.series) {
    for (const PlotPoint& point : series.points) y.add(point.value);
  }
  std::string html = "<figure><figcaption>" + htmlText(plot.title);
  for (std::size_t i = 0; i < plot.series.size(); ++i) {
    html += " <span class='key " + styleOf(i) + "'>" + htmlText(plot.series[i].name) + "</span>";
  }
  html += "</figcaption>";
  html += "<div class='plot'><div class='y'><span>" + shortText(y.high(), 6) + "</span><span>" +
          shortText(y.low(), 6) + "</span></div>" + pictureHtml(plot, x, y) +
          "<div class='x'><span>" + shortText(x.low(), 6) + "</span><span>" +
          shortText(x.high(), 6) + "</span></div></div></figure>\n";
  return html;
}

}  // namespace vtlcmd::runner

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
/// More points than this can't be told apart at the picture's size.
constexpr std::size_t mostPoints = 1000;

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
  bool isEmpty() const { return low_ > high_; }
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

std::optional<double> finite(const std::optional<double>& value) {
  return value && std::isfinite(*value) ? value : std::nullopt;
}

/// The indices to draw: all, or of each stretch its lowest and highest value in order.
std::vector<std::size_t> pointsToDraw(const std::vector<std::optional<double>>& values) {
  std::vector<std::size_t> points;
  const std::size_t stretch =
      values.size() <= mostPoints ? 1 : (2 * values.size() + mostPoints - 1) / mostPoints;
  for (std::size_t first = 0; first < values.size(); first += stretch) {
    const std::size_t end = std::min(first + stretch, values.size());
    std::size_t lowest = first;
    std::size_t highest = first;
    for (std::size_t i = first; i < end; ++i) {
      if (!finite(values[i])) continue;
      if (!finite(values[lowest]) || *values[i] < *values[lowest]) lowest = i;
      if (!finite(values[highest]) || *values[i] > *values[highest]) highest = i;
    }
    points.push_back(std::min(lowest, highest));
    if (lowest != highest) points.push_back(std::max(lowest, highest));
  }
  return points;
}

std::string pathData(const PlotSeries& series, const std::vector<double>& frames, const Range& x,
                     const Range& y) {
  std::string data;
  bool connected = false;
  for (const std::size_t i : pointsToDraw(series.values)) {
    const std::optional<double> value = finite(series.values[i]);
    if (value) {
      data += connected ? "L" : "M";
      data += shortText(x.share(frames[i]) * width, 5) + " " +
              shortText((1 - y.share(*value)) * height, 5);
      // A line of no length is drawn as a dot, so that a value between gaps is seen.
      if (!connected) data += "h0";
    }
    connected = value.has_value();
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
    html += "<path class='" + styleOf(i) + "' d='" + pathData(plot.series[i], plot.frames, x, y) +
            "'><title>" + htmlText(plot.series[i].name) + "</title></path>";
  }
  return html + "</svg>";
}

}  // namespace

std::string linePlotHtml(const LinePlot& plot) {
  Range x;
  Range y;
  for (const double frame : plot.frames) x.add(frame);
  for (const PlotSeries& series : plot.series) {
    for (const auto& value : series.values) {
      if (finite(value)) y.add(*value);
    }
  }
  std::string html = "<figure><figcaption>" + htmlText(plot.title);
  for (std::size_t i = 0; i < plot.series.size(); ++i) {
    html += " <span class='key " + styleOf(i) + "'>" + htmlText(plot.series[i].name) + "</span>";
  }
  html += "</figcaption>";
  if (y.isEmpty()) return html + "<p>no finite value</p></figure>\n";
  html += "<div class='plot'><div class='y'><span>" + shortText(y.high(), 6) + "</span><span>" +
          shortText(y.low(), 6) + "</span></div>" + pictureHtml(plot, x, y) +
          "<div class='x'><span>" + shortText(x.low(), 6) + "</span><span>" +
          shortText(x.high(), 6) + "</span></div></div></figure>\n";
  return html;
}

}  // namespace vtlcmd::runner

#include "report/line_plot.h"

#include <cstddef>
#include <span>

#include "report/html_text.h"
#include "report/plot_size.h"

namespace vtlcmd::runner {
namespace {

constexpr std::size_t styles = 4;
constexpr int verticalMarks = 4;

struct Scales {
  Axis x;
  Axis y;

  std::string place(const PlotPoint& point) const {
    return shortNumber(x.share(point.frame) * plotWidth, 5) + " " +
           shortNumber((1 - y.share(point.value)) * plotHeight, 5);
  }

  std::string line(std::span<const PlotPoint> points) const {
    std::string data;
    for (const PlotPoint& point : points) data += (data.empty() ? "M" : "L") + place(point);
    return data;
  }
};

bool isStatistic(const std::string& name) {
  return name == "min" || name == "max" || name == "avg";
}

const PlotSeries* seriesNamed(const LinePlot& plot, const std::string& name) {
  const auto found = std::find_if(plot.series.begin(), plot.series.end(),
                                  [&](const PlotSeries& series) { return series.name == name; });
  return found == plot.series.end() ? nullptr : &*found;
}

/// Whether the line runs on from one point to another.
bool isConnected(const PlotPoint& point, const PlotPoint& next) {
  return next.stretch - point.stretch <= 1;
}

using Points = std::span<const PlotPoint>;

/// The points between gaps.
std::vector<Points> connectedRuns(const PlotSeries& series) {
  std::vector<Points> runs;
  const Points points = series.points;
  std::size_t begin = 0;
  for (std::size_t i = 1; i <= points.size(); ++i) {
    if (i < points.size() && isConnected(points[i - 1], points[i])) continue;
    runs.push_back(points.subspan(begin, i - begin));
    begin = i;
  }
  return runs;
}

/// The lines of a series, and as dots the points that no line reaches.
struct Drawing {
  std::string lines;
  std::string dots;
};

Drawing drawingOf(const PlotSeries& series, const Scales& scales) {
  Drawing drawing;
  for (const Points run : connectedRuns(series)) {
    // A line of no length has round ends all the same.
    if (run.size() == 1) drawing.dots += "M" + scales.place(run.front()) + "h0";
    if (run.size() > 1) drawing.lines += scales.line(run);
  }
  return drawing;
}

/// The area between the lowest and the highest, where both are drawn.
std::string bandHtml(const LinePlot& plot, const Scales& scales) {
  const PlotSeries* low = seriesNamed(plot, "min");
  const PlotSeries* high = seriesNamed(plot, "max");
  if (low == nullptr || high == nullptr) return "";
  const std::vector<Points> lowRuns = connectedRuns(*low);
  const std::vector<Points> highRuns = connectedRuns(*high);
  if (lowRuns.size() != highRuns.size()) return "";
  std::string data;
  for (std::size_t i = 0; i < lowRuns.size(); ++i) {
    const std::vector<PlotPoint> back(highRuns[i].rbegin(), highRuns[i].rend());
    data += scales.line(lowRuns[i]) + "L" + scales.line(back).substr(1) + "Z";
  }
  return "<path class='band' d='" + data + "'/>";
}

std::string styleOf(const LinePlot& plot, std::size_t series) {
  const std::string& name = plot.series[series].name;
  return isStatistic(name) ? name : "s" + std::to_string(series % styles);
}

/// Empty without data.
std::string pathHtml(const std::string& style, const std::string& data, const std::string& name) {
  if (data.empty()) return "";
  std::string html = "<path class='";
  html.append(style).append("' d='").append(data).append("'><title>");
  return html.append(htmlText(name)).append("</title></path>");
}

std::string pictureHtml(const LinePlot& plot, const Scales& scales) {
  std::string html =
      "<svg viewBox='0 0 1000 500' preserveAspectRatio='none' role='img' aria-label='" +
      htmlText(plot.title) + " over frames'><path class='grid' d='";
  for (const Axis::Mark& mark : scales.y.marks())
    html += "M0 " + shortNumber((1 - scales.y.share(mark.place)) * plotHeight, 5) + "H1000";
  html += "'/>" + bandHtml(plot, scales);
  for (std::size_t i = 0; i < plot.series.size(); ++i) {
    const Drawing drawing = drawingOf(plot.series[i], scales);
    html += pathHtml(styleOf(plot, i), drawing.lines, plot.series[i].name);
    html += pathHtml(styleOf(plot, i) + " dot", drawing.dots, plot.series[i].name);
  }
  return html + "</svg>";
}

std::string captionHtml(const LinePlot& plot) {
  std::string html = "<figcaption>";
  if (!plot.title.empty()) html += "<b>" + htmlText(plot.title) + "</b>";
  for (std::size_t i = 0; i < plot.series.size(); ++i) {
    html +=
        " <span class='key " + styleOf(plot, i) + "'>" + htmlText(plot.series[i].name) + "</span>";
  }
  return html + "</figcaption>";
}

Scales scalesOf(const LinePlot& plot, const FrameRange& frames) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const PlotSeries& series : plot.series) {
    for (const PlotPoint& point : series.points) {
      low = std::min(low, point.value);
      high = std::max(high, point.value);
    }
  }
  return {frames.axis(), Axis::rounded(low, high, verticalMarks)};
}

std::string labelHtml(const char* side, double share, const std::string& label) {
  return std::string("<span style='") + side + ":" + shortNumber(share * 100, 4) + "%'>" + label +
         "</span>";
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

std::string bottomLabelsHtml(const Axis& axis) {
  std::string html = "<div class='x'>";
  for (const Axis::Mark& mark : axis.marks())
    html += labelHtml("left", axis.share(mark.place), mark.label);
  return html + "</div>";
}

std::string leftLabelsHtml(const Axis& axis, bool isDown) {
  std::string html = "<div class='y'>";
  for (const Axis::Mark& mark : axis.marks()) {
    const double share = axis.share(mark.place);
    html += labelHtml("top", isDown ? share : 1 - share, mark.label);
  }
  return html + "</div>";
}

std::string linePlotHtml(const LinePlot& plot, const FrameRange& frames) {
  const Scales scales = scalesOf(plot, frames);
  return "<figure>" + captionHtml(plot) + "<div class='plot'>" + leftLabelsHtml(scales.y) +
         pictureHtml(plot, scales) + bottomLabelsHtml(scales.x) + "</div></figure>\n";
}

}  // namespace vtlcmd::runner

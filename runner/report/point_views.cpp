#include "report/point_views.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "report/frame_ranges.h"
#include "report/html_text.h"
#include "report/line_plot.h"

namespace vtlcmd::runner {
namespace {

using Point = std::array<double, 3>;

constexpr std::array<const char*, 3> axisNames{"x", "y", "z"};

/// The components that go to the right and up in a view; `isDown`: the second one goes down.
struct View {
  const char* name;
  std::size_t right;
  std::size_t up;
  bool isDown;
};

constexpr std::array<View, 3> views{
    {{"front", 0, 1, false}, {"side", 2, 1, false}, {"top", 0, 2, true}}};

/// In the picture's own coordinates.
constexpr double size = 1000;
/// Of more points smaller dots are drawn.
constexpr std::size_t fewPoints = 400;

std::vector<Point> finitePoints(const Json& points) {
  std::vector<Point> result;
  for (const Json& each : points) {
    Point point{};
    bool isFinite = true;
    for (std::size_t i = 0; i < std::min(each.size(), point.size()); ++i) {
      isFinite &= each[i].is_number();
      if (isFinite) point[i] = each[i];
    }
    if (isFinite) result.push_back(point);
  }
  return result;
}

/// An axis a component, all equally long, with the points in the middle. Halves keep the widest
/// range finite.
std::array<Axis, 3> axesOf(const std::vector<Point>& points) {
  Point low = points.front();
  Point high = points.front();
  for (const Point& point : points) {
    for (std::size_t i = 0; i < point.size(); ++i) {
      low[i] = std::min(low[i], point[i]);
      high[i] = std::max(high[i], point[i]);
    }
  }
  double reach = 0;
  for (std::size_t i = 0; i < low.size(); ++i) reach = std::max(reach, high[i] / 2 - low[i] / 2);
  reach = reach > 0 ? reach * 1.04 : 1;
  constexpr double most = std::numeric_limits<double>::max();
  const auto axis = [&](std::size_t i) {
    const double middle = low[i] / 2 + high[i] / 2;
    return Axis::inner(std::max(middle - reach, -most), std::min(middle + reach, most), 3);
  };
  return {axis(0), axis(1), axis(2)};
}

std::string coordinate(double share) { return std::to_string(std::lround(share * size)); }

std::string viewHtml(const View& view, const std::vector<Point>& points,
                     const std::array<Axis, 3>& axes) {
  const Axis& x = axes[view.right];
  const Axis& y = axes[view.up];
  std::string data;
  for (const Point& point : points) {
    const double share = y.share(point[view.up]);
    data += "M" + coordinate(x.share(point[view.right])) + " " +
            coordinate(view.isDown ? share : 1 - share) + "h0";
  }
  return std::string("<div><div class='facts'>") + view.name + ": " + axisNames[view.right] +
         " right, " + axisNames[view.up] + (view.isDown ? " down" : " up") +
         "</div><div class='plot view'>" + leftLabelsHtml(y, view.isDown) +
         "<svg viewBox='0 0 1000 1000' role='img' aria-label='points from the " + view.name +
         "'><path class='grid' d='M0 0H1000V1000H0z'/><path class='points" +
         (points.size() > fewPoints ? " many" : "") + "' d='" + data + "'/></svg>" +
         bottomLabelsHtml(x) + "</div></div>\n";
}

}  // namespace

std::string pointViewsHtml(const Json& picture, const std::string& frame) {
  const Json& points = picture.at("points");
  const std::uint64_t count = picture.at("count");
  const std::vector<Point> finite = finitePoints(points);
  std::string html = "<figure class='points'><figcaption><b>Frame " + htmlText(frame) +
                     "</b> <span class='facts'>" +
                     (count > points.size() ? groupedDigits(points.size()) + " of " : "") +
                     counted(count, "point");
  if (finite.size() < points.size())
    html += ", " + groupedDigits(points.size() - finite.size()) + " not finite";
  html += "</span></figcaption><div class='views'>\n";
  if (!finite.empty()) {
    const std::array<Axis, 3> axes = axesOf(finite);
    const bool isFlat = points.front().size() < 3;
    for (const View& view : views) {
      html += viewHtml(view, finite, axes);
      if (isFlat) break;
    }
  }
  return html + "</div></figure>\n";
}

}  // namespace vtlcmd::runner

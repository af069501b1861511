#include "report/histogram_plot.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "report/frame_ranges.h"
#include "report/html_text.h"
#include "report/line_plot.h"
#include "report/plot_size.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

/// Of a bar's place, between bars.
constexpr double gap = 0.08;

/// A path up from the bottom and back.
std::string bar(double left, const std::string& width, const std::string& height) {
  return "M" + shortNumber(left, 5) + " 500v-" + height + "h" + width + "v" + height + "z";
}

std::string barData(const std::vector<std::uint64_t>& counts, const Axis& y) {
  const double room = plotWidth / static_cast<double>(counts.size());
  const std::string thickness = shortNumber(room * (1 - gap), 5);
  std::string data;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (counts[i] == 0) continue;
    const std::string height = shortNumber(y.share(static_cast<double>(counts[i])) * plotHeight, 5);
    data += bar((static_cast<double>(i) + gap / 2) * room, thickness, height);
  }
  return data;
}

std::string gridData(const Axis& y) {
  std::string data;
  for (const Axis::Mark& mark : y.marks())
    data += "M0 " + shortNumber((1 - y.share(mark.place)) * plotHeight, 5) + "H1000";
  return data;
}

/// Counts have no fractions, small ones too.
Axis leftAxis(std::uint64_t most) {
  const auto high = static_cast<double>(most);
  return most < 3 ? Axis::exact(0, high, 3, true) : Axis::rounded(0, high, 3);
}

/// Bars of one whole number each have it below their middle.
Axis bottomAxis(const Json& histogram, std::size_t bins) {
  const double low = histogram.at("low");
  const double step = histogram.at("width");
  const auto count = static_cast<double>(bins);
  const bool isEachNumber = histogram.at("width").is_number_integer() && step == 1;
  if (isEachNumber) return Axis::exact(low, low + count - 1, 6, true).widened(0.5);
  return Axis::inner(low, low + step * count, 6);
}

}  // namespace

std::string histogramHtml(const Json& histogram, const std::string& frame) {
  const std::vector<std::uint64_t> counts = histogram.at("counts");
  std::uint64_t total = 0;
  for (const std::uint64_t count : counts) total += count;
  std::string html = "<figure><figcaption><b>Frame " + htmlText(frame) +
                     "</b> <span class='facts'>" + counted(total, "element");
  if (counts.size() < 2) html += ", all " + jsonText(histogram.at("low"));
  const std::uint64_t notFinite = histogram.at("not_finite");
  if (notFinite > 0) html += ", " + groupedDigits(notFinite) + " more not finite";
  html += "</span></figcaption>";
  if (counts.size() < 2) return html + "</figure>\n";
  const Axis y = leftAxis(*std::max_element(counts.begin(), counts.end()));
  return html + "<div class='plot'>" + leftLabelsHtml(y) +
         "<svg viewBox='0 0 1000 500' preserveAspectRatio='none' role='img' "
         "aria-label='histogram'><path class='grid' d='" +
         gridData(y) + "'/><path class='bars' d='" + barData(counts, y) + "'/></svg>" +
         bottomLabelsHtml(bottomAxis(histogram, counts.size())) + "</div></figure>\n";
}

}  // namespace vtlcmd::runner

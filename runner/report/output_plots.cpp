#include "report/output_plots.h"

#include <algorithm>
#include <charconv>

#include "report/text_numbers.h"

namespace vtlcmd::runner {
namespace {

/// The frame's number as the entry tells it.
double frameNumber(const ReportEntry& entry) {
  double number = entry.frameIndex;
  const std::string& text = entry.frameText;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// The item of a name, which is most often at the place where it was in the frame before.
template <typename T>
T& findOrAdd(std::vector<T>& items, std::string T::*name, const std::string& wanted,
             std::size_t place) {
  if (place < items.size() && items[place].*name == wanted) return items[place];
  const auto found =
      std::find_if(items.begin(), items.end(), [&](const T& item) { return item.*name == wanted; });
  if (found != items.end()) return *found;
  items.emplace_back().*name = wanted;
  return items.back();
}

void addNumbers(std::vector<LinePlot>& plots, const OutputReport& report, std::size_t frameIndex,
                std::size_t frameCount) {
  const std::vector<NumberGroup> groups = numbersIn(report.typeName, report.valueText);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    LinePlot& plot = findOrAdd(plots, &LinePlot::title, groups[i].title, i);
    for (std::size_t j = 0; j < groups[i].numbers.size(); ++j) {
      const NamedNumber& number = groups[i].numbers[j];
      PlotSeries& series = findOrAdd(plot.series, &PlotSeries::name, number.name, j);
      series.values.resize(frameCount);
      series.values[frameIndex] = number.number;
    }
  }
}

}  // namespace

std::map<std::string, std::vector<LinePlot>> plotOutputs(const ReportGroup& group) {
  std::map<std::string, std::vector<LinePlot>> outputs;
  const std::size_t frameCount = group.entries.size();
  if (frameCount < 2) return outputs;
  std::vector<double> frames;
  for (std::size_t i = 0; i < frameCount; ++i) {
    frames.push_back(frameNumber(group.entries[i]));
    for (const auto& [name, report] : group.entries[i].outputs)
      addNumbers(outputs[name], report, i, frameCount);
  }
  std::erase_if(outputs, [](const auto& output) { return output.second.empty(); });
  for (auto& [name, plots] : outputs) {
    for (LinePlot& plot : plots) plot.frames = frames;
  }
  return outputs;
}

}  // namespace vtlcmd::runner

#include "report/output_plots.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vtlcmd::runner {
namespace {

using Json = nlohmann::ordered_json;

/// More points than this can't be told apart at the picture's size.
constexpr std::uint64_t mostPoints = 1000;

constexpr std::array componentNames{"x", "y", "z", "w"};

/// What an array's exact value calls its statistics, and what the report text calls them.
constexpr std::array<std::pair<const char*, const char*>, 3> statistics{
    {{"min", "min"}, {"max", "max"}, {"average", "avg"}}};

/// The plots of one output in one frame.
class FramePlots {
 public:
  FramePlots(std::vector<LinePlot>& plots, std::uint64_t stretch, double frame)
      : plots_(plots), stretch_(stretch), frame_(frame) {}

  void addOutput(const Json& value) {
    if (value.is_object() && !value.contains("sizes")) {
      for (const auto& [name, property] : value.items()) addValue(name, property);
    } else {
      addValue("", value);
    }
  }

 private:
  void addValue(const std::string& title, const Json& value) {
    if (value.is_object()) {
      if (value.contains("count")) addNumber(title, "count", value["count"]);
      for (const auto& [key, name] : statistics) {
        if (value.contains(key)) addStatistic(title, name, value[key]);
      }
    } else if (value.is_array()) {
      for (std::size_t i = 0; i < std::min(value.size(), componentNames.size()); ++i)
        addNumber(title, componentNames[i], value[i]);
    } else {
      addNumber(title, "value", value);
    }
  }

  /// Each component of vectors has a plot of its own.
  void addStatistic(const std::string& title, const char* name, const Json& value) {
    if (!value.is_array()) return addNumber(title, name, value);
    for (std::size_t i = 0; i < std::min(value.size(), componentNames.size()); ++i)
      addNumber(title + (title.empty() ? "" : " ") + componentNames[i], name, value[i]);
  }

  /// Texts, those of numbers that aren't finite too, and truths leave gaps.
  void addNumber(const std::string& title, const std::string& name, const Json& number) {
    if (!number.is_number()) return;
    findOrAdd(findOrAdd(plots_, &LinePlot::title, title).series, &PlotSeries::name, name)
        .add({stretch_, frame_, number.get<double>()});
  }

  template <typename T>
  static T& findOrAdd(std::vector<T>& items, std::string T::*name, const std::string& wanted) {
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const T& item) { return item.*name == wanted; });
    if (found != items.end()) return *found;
    items.emplace_back().*name = wanted;
    return items.back();
  }

  std::vector<LinePlot>& plots_;
  std::uint64_t stretch_;
  double frame_;
};

}  // namespace

OutputPlots::OutputPlots(std::uint64_t frameCount)
    : stretch_(frameCount <= mostPoints ? 1 : (2 * frameCount + mostPoints - 1) / mostPoints) {}

void OutputPlots::add(std::uint64_t index, double frame, const Json& outputs) {
  frames_.add(frame);
  for (const auto& [name, output] : outputs.items()) {
    if (!output.contains("value")) continue;
    std::vector<LinePlot> plots;
    const auto known = outputs_.find(name);
    std::vector<LinePlot>& target = known == outputs_.end() ? plots : known->second;
    FramePlots(target, index / stretch_, frame).addOutput(output["value"]);
    if (!plots.empty()) outputs_.emplace(name, std::move(plots));
  }
}

}  // namespace vtlcmd::runner

#include "report/output_plots.h"

#include <algorithm>
#include <array>

#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

/// More points than this can't be told apart at the picture's size.
constexpr std::uint64_t mostPlotted = 1000;

constexpr std::array componentSymbols{"x", "y", "z", "w"};

/// What an array's exact value calls its statistics, and what the report text calls them.
constexpr std::array<std::pair<const char*, const char*>, 3> statistics{
    {{"min", "min"}, {"max", "max"}, {"average", "avg"}}};

template <typename T, typename Name>
T& findOrAdd(std::vector<T>& items, Name name, const std::string& wanted) {
  const auto found =
      std::find_if(items.begin(), items.end(), [&](T& item) { return name(item) == wanted; });
  if (found != items.end()) return *found;
  name(items.emplace_back()) = wanted;
  return items.back();
}

}  // namespace

OutputPlots::OutputPlots(std::uint64_t frameCount)
    : stretch_(frameCount <= mostPlotted ? 1 : (2 * frameCount + mostPlotted - 1) / mostPlotted) {}

void OutputPlots::add(std::uint64_t index, double frame, const Json& value) {
  const Place place{index / stretch_, frame};
  if (value.is_object() && !value.contains("sizes")) {
    for (const auto& [name, property] : value.items()) addValue(place, name, property);
  } else {
    addValue(place, "", value);
  }
}

void OutputPlots::addValue(const Place& place, const std::string& title, const Json& value) {
  if (value.is_object()) {
    if (value.contains("count")) addNumber(place, title, "count", value["count"]);
    if (value.contains("sizes")) {
      const Json& sizes = value["sizes"];
      for (std::size_t i = 0; i < sizes.size(); ++i)
        addNumber(place, title, sizes.size() == 1 ? "size" : "size " + std::to_string(i + 1),
                  sizes[i]);
    }
    for (const auto& [key, name] : statistics) {
      if (value.contains(key)) addStatistic(place, title, name, value[key]);
    }
  } else if (value.is_array()) {
    for (std::size_t i = 0; i < std::min(value.size(), componentSymbols.size()); ++i)
      addNumber(place, title, componentSymbols[i], value[i]);
  } else {
    addNumber(place, title, "value", value);
  }
}

/// Each component of vectors is a thing of its own.
void OutputPlots::addStatistic(const Place& place, const std::string& title, const char* name,
                               const Json& value) {
  if (!value.is_array()) return addNumber(place, title, name, value);
  for (std::size_t i = 0; i < std::min(value.size(), componentSymbols.size()); ++i)
    addNumber(place, title + (title.empty() ? "" : " ") + componentSymbols[i], name, value[i]);
}

/// Numbers that aren't finite leave gaps; truths and nothing are no numbers.
void OutputPlots::addNumber(const Place& place, const std::string& title, const std::string& name,
                            const Json& number) {
  const bool isFinite = number.is_number();
  if (!isFinite && !number.is_string()) return;
  Thing& thing = findOrAdd(
      things_, [](Thing& each) -> std::string& { return each.title; }, title);
  Series& series = findOrAdd(
      thing.series, [](Series& each) -> std::string& { return each.plot.name; }, name);
  if (series.first.is_null()) series.first = number;
  series.changes |= series.first != number;
  if (isFinite) series.plot.add({place.stretch, place.frame, number.get<double>()});
}

std::vector<LinePlot> OutputPlots::changing() const {
  std::vector<LinePlot> plots;
  for (const Thing& thing : things_) {
    LinePlot plot{thing.title, {}};
    for (const Series& series : thing.series) {
      if (series.changes && !series.plot.points.empty()) plot.series.push_back(series.plot);
    }
    if (!plot.series.empty()) plots.push_back(std::move(plot));
  }
  return plots;
}

std::vector<OutputPlots::Constants> OutputPlots::constants() const {
  std::vector<Constants> rows;
  for (const Thing& thing : things_) {
    Constants row{thing.title, {}};
    for (const Series& series : thing.series) {
      if (!series.changes) row.numbers.emplace_back(series.plot.name, plainText(series.first));
    }
    if (!row.numbers.empty()) rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace vtlcmd::runner

#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "report/line_plot.h"
#include "text/json.h"

namespace vtlcmd::runner {

/// Collects the numbers of one output over the frames of a run, from its exact values: numbers, the
/// components of vectors, sizes and statistics of arrays, alone and in objects.
class OutputPlots {
 public:
  /// `frameCount` is that of the whole job.
  explicit OutputPlots(std::uint64_t frameCount);

  /// The exact value of a frame as its journal line has it; `index` is below the count.
  void add(std::uint64_t index, double frame, const Json& value);

  /// A plot for the numbers of one thing, as far as they change.
  std::vector<LinePlot> changing() const;

  /// Numbers of one thing that are the same in every frame that has them, by name, exact.
  struct Constants {
    std::string title;
    std::vector<std::pair<std::string, std::string>> numbers;
  };
  std::vector<Constants> constants() const;

 private:
  // A null JSON value needs no memory, so that making one throws nothing.
  // NOLINTNEXTLINE(bugprone-exception-escape)
  struct Series {
    PlotSeries plot;
    Json first;
    bool changes = false;
  };
  struct Thing {
    std::string title;
    std::vector<Series> series;
  };
  struct Place {
    std::uint64_t stretch;
    double frame;
  };

  void addValue(const Place& place, const std::string& title, const Json& value);
  void addStatistic(const Place& place, const std::string& title, const char* name,
                    const Json& value);
  void addNumber(const Place& place, const std::string& title, const std::string& name,
                 const Json& number);

  std::uint64_t stretch_;
  std::vector<Thing> things_;
};

}  // namespace vtlcmd::runner

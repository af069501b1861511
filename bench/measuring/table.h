#pragma once

#include <benchmark/benchmark.h>
#include <cstddef>
#include <ostream>
#include <vector>

#include "measuring/row.h"

namespace vtlcmd::bench {

/// Makes a benchmark of each row. One iteration is one pair; the counters are the medians of both
/// figures and of the ratios of the pairs, and the goal.
void registerRows(const std::vector<Row>& rows);

/// Prints one line a benchmark: name, subject, limit, ratio, goal, verdict.
class Table : public benchmark::BenchmarkReporter {
 public:
  /// Without judging there are no verdicts.
  Table(std::ostream& stream, bool judging);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  /// How many goals were missed so far, failed benchmarks included.
  std::size_t missed() const noexcept { return missed_; }

 private:
  const char* verdictOf(const Run& run);

  std::ostream& stream_;
  bool judging_;
  std::size_t missed_ = 0;
};

}  // namespace vtlcmd::bench

#include "measuring/table.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>

namespace vtlcmd::bench {
namespace {

constexpr int nameWidth = 52;
constexpr int figureWidth = 15;

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void measure(benchmark::State& state, const Row& row) {
  std::vector<double> subjects;
  std::vector<double> limits;
  std::vector<double> ratios;
  // The first pair finds everything cold.
  if (row.pairs > 1) row.measure();
  for (auto _ : state) {
    const Pair pair = row.measure();
    state.SetIterationTime(pair.subject * 1e-9);
    subjects.push_back(pair.subject);
    limits.push_back(pair.limit);
    ratios.push_back(pair.subject / pair.limit);
  }
  state.counters["subject"] = median(std::move(subjects));
  state.counters["limit"] = median(std::move(limits));
  state.counters["ratio"] = median(std::move(ratios));
  if (row.goal) state.counters["goal"] = *row.goal;
  state.SetLabel(row.unit);
}

/// Four significant digits, large numbers whole and long times in milliseconds.
std::string figureText(double figure, const std::string& unit) {
  if (unit == "ns" && figure >= 1e6) return figureText(figure / 1e6, "ms");
  std::ostringstream text;
  const int digits = figure >= 1000 ? 0 : figure >= 100 ? 1 : figure >= 10 ? 2 : 3;
  text << std::fixed << std::setprecision(digits) << figure << ' ' << unit;
  return text.str();
}

std::string ratioText(double ratio) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(2) << ratio;
  return text.str();
}

/// The processor's name as Linux knows it; empty elsewhere.
std::string processorName() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("model name")) return line.substr(line.find(": ") + 2);
  }
  return {};
}

void writeLine(std::ostream& stream, const std::string& name, const std::string& subject,
               const std::string& limit, const std::string& ratio, const std::string& goal,
               const char* verdict) {
  stream << std::left << std::setw(nameWidth) << name << std::right << std::setw(figureWidth)
         << subject << std::setw(figureWidth) << limit << std::setw(8) << ratio << std::setw(7)
         << goal << "  " << verdict << std::endl;
}

}  // namespace

void registerRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    benchmark::RegisterBenchmark(row.name.c_str(),
                                 [row](benchmark::State& state) { measure(state, row); })
        ->Iterations(static_cast<benchmark::IterationCount>(row.pairs))
        ->UseManualTime();
  }
}

Table::Table(std::ostream& stream, bool judging) : stream_(stream), judging_(judging) {}

bool Table::ReportContext(const Context&) {
  stream_ << processorName() << '\n';
  writeLine(stream_, "what", "subject", "limit", "ratio", "goal", "verdict");
  return true;
}

void Table::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      ++missed_;
      stream_ << run.run_name.function_name << ": " << run.error_message << std::endl;
      continue;
    }
    const auto goal = run.counters.find("goal");
    writeLine(stream_, run.run_name.function_name,
              figureText(run.counters.at("subject"), run.report_label),
              figureText(run.counters.at("limit"), run.report_label),
              ratioText(run.counters.at("ratio")),
              goal == run.counters.end() ? "" : ratioText(goal->second), verdictOf(run));
  }
}

const char* Table::verdictOf(const Run& run) {
  if (!judging_) return "not judged";
  const auto goal = run.counters.find("goal");
  if (goal == run.counters.end()) return "reported only";
  if (run.counters.at("ratio") <= goal->second) return "met";
  ++missed_;
  return "MISSED";
}

}  // namespace vtlcmd::bench

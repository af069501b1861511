#include <benchmark/benchmark.h>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>
#include <utility>

#include "measuring/table.h"
#include "rows/rows.h"

namespace vtlcmd::bench {
namespace {

/// Takes an option out of the arguments. Whether it was there.
bool takeOption(int& count, char** arguments, std::string_view option) {
  for (int i = 1; i < count; ++i) {
    if (arguments[i] != option) continue;
    for (; i + 1 < count; ++i) arguments[i] = arguments[i + 1];
    --count;
    return true;
  }
  return false;
}

int run(int count, char** arguments) {
  const bool smoke = takeOption(count, arguments, "--smoke");
  const Scale scale = smoke ? Scale::small() : Scale::full();
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;

  std::vector<Row> rows;
  for (TimedRow& row : operationRows(scale)) rows.push_back(timed(std::move(row)));
  for (TimedRow& row : runRows(scale)) rows.push_back(timed(std::move(row)));
  for (Row& row : workerRows(scale)) rows.push_back(std::move(row));
  rows.push_back(reportMemoryRow(scale));
  if (smoke) {
    for (Row& row : rows) row.pairs = 1;
  }
  const std::size_t rowCount = rows.size();
  registerRows(rows);

  Table table(std::cout, !smoke);
  benchmark::RunSpecifiedBenchmarks(&table);
  if (smoke) std::cout << rowCount << " rows\n";
  if (table.missed() == 0) return EXIT_SUCCESS;
  std::cout << table.missed() << " missed\n";
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace vtlcmd::bench

/// vtlcmd_bench [--smoke] [options of Google Benchmark]: fails where a goal is missed. The smoke
/// run only shows that every row runs, on little data and without a verdict.
int main(int count, char** arguments) {
  try {
    return vtlcmd::bench::run(count, arguments);
  } catch (const std::exception& error) {
    std::cerr << "vtlcmd_bench: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}

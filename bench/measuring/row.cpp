#include "measuring/row.h"

#include <chrono>
#include <utility>

namespace vtlcmd::bench {
namespace {

double nanosecondsOf(const TimedRow& row, const Work& work) {
  if (row.prepare) row.prepare();
  const auto start = std::chrono::steady_clock::now();
  work(row.calls);
  const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
  return time.count() / static_cast<double>(row.calls) / static_cast<double>(row.elements);
}

}  // namespace

Row timed(TimedRow row) {
  std::string name = row.name;
  const std::optional<double> goal = row.goal;
  const std::size_t pairs = row.pairs;
  const auto measure = [row = std::move(row)] {
    Pair pair{nanosecondsOf(row, row.subject), nanosecondsOf(row, row.limit)};
    if (row.fixedPart) pair.subject -= nanosecondsOf(row, row.fixedPart);
    return pair;
  };
  return {std::move(name), "ns", goal, pairs, measure};
}

}  // namespace vtlcmd::bench

#include "measuring/row.h"

#include <ctime>
#include <sys/resource.h>
#include <utility>

namespace vtlcmd::bench {
namespace {

double nanoseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_usec) * 1e3;
}

/// What this process and its ended children have used of the processor: unlike the time of day it
/// doesn't grow while others use it.
double processorTime() {
  timespec own{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
  rusage children{};
  getrusage(RUSAGE_CHILDREN, &children);
  return static_cast<double>(own.tv_sec) * 1e9 + static_cast<double>(own.tv_nsec) +
         nanoseconds(children.ru_utime) + nanoseconds(children.ru_stime);
}

double nanosecondsOf(const TimedRow& row, const Work& work) {
  if (row.prepare) row.prepare();
  const double start = processorTime();
  work(row.calls);
  return (processorTime() - start) / static_cast<double>(row.calls) /
         static_cast<double>(row.elements);
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

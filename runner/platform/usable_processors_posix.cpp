#include <algorithm>
#include <cmath>
#include <fstream>
#include <sched.h>
#include <thread>

#include "platform/control_group_posix.h"
#include "platform/usable_processors.h"

namespace vtlcmd::runner {
namespace {

unsigned permittedProcessors() {
  cpu_set_t processors;
  // Fails on machines with more processors than the set has room for.
  if (::sched_getaffinity(0, sizeof processors, &processors) == 0)
    return static_cast<unsigned>(CPU_COUNT(&processors));
  return std::thread::hardware_concurrency();
}

/// The processors' worth of time that two numbers in a group's files give; 0 where there is no
/// limit, for which the first one is "max" or negative.
double share(std::istream& quota, std::istream& period) {
  double time = 0;
  double each = 0;
  return quota >> time && period >> each && time > 0 && each > 0 ? time / each : 0;
}

double shareOf(const std::filesystem::path& group) {
  std::ifstream both(group / "cpu.max");
  if (both) return share(both, both);
  std::ifstream quota(group / "cpu.cfs_quota_us");
  std::ifstream period(group / "cpu.cfs_period_us");
  return share(quota, period);
}

}  // namespace

unsigned usableProcessors() {
  double processors = std::max(1U, permittedProcessors());
  for (const std::filesystem::path& group : controlGroups("cpu")) {
    if (const double limit = shareOf(group); limit > 0) processors = std::min(processors, limit);
  }
  return static_cast<unsigned>(std::max(1.0, std::floor(processors)));
}

}  // namespace vtlcmd::runner

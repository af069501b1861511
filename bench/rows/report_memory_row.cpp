#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"
#include "rows/borrowed_array.h"
#include "rows/rows.h"

namespace vtlcmd::bench {
namespace {

/// A line of the kernel's account of this process, in KiB.
double memoryOf(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kibibytes = 0;
    if (word == key && status >> kibibytes) return kibibytes;
  }
  throw std::runtime_error("/proc/self/status has no " + key);
}

/// From now on the peak is that of what follows.
void forgetPeak() { std::ofstream("/proc/self/clear_refs") << '5' << std::flush; }

}  // namespace

/// What a report of a large array needs at its peak besides the array.
Row reportMemoryRow(const Scale& scale) {
  const auto measure = [scale] {
    const PlugIn plugIn;
    Host host;
    const Any array = makeAny(arrayOver<float>(Bytes(scale.reportBytes)));
    const double before = memoryOf("VmRSS:");
    forgetPeak();
    plugIn.translation().getOutputAny(array, &host.output);
    return Pair{memoryOf("VmHWM:") - before, 1024};
  };
  return {"peak memory of a report besides the array", "KiB", 1.0, 1, measure};
}

}  // namespace vtlcmd::bench

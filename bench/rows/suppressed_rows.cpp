#include <memory>

#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"
#include "rows/borrowed_array.h"
#include "rows/rows.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::bench {
namespace {

struct Setup {
  explicit Setup(std::size_t bytes)
      : many(arrayOver<float>(Bytes(bytes))), one(arrayOver<float>(Bytes(sizeof(float)))) {}

  PlugIn plugIn;
  Host host{0};
  StoredArray<float, 1> many;
  StoredArray<float, 1> one;
};

/// The same report of a large array and of one with one element; nothing of either is shown.
template <typename Report>
TimedRow row(const char* name, std::size_t bytes, Report report) {
  const auto setup = std::make_shared<Setup>(bytes);
  const auto work = [&](const StoredArray<float, 1>& array) {
    return [setup, report, array = report.hold(array)](std::size_t calls) {
      for (std::size_t i = 0; i < calls; ++i) report(*setup, array);
    };
  };
  TimedRow row;
  row.name = name;
  row.goal = 1.1;
  row.calls = 300;
  row.pairs = 201;
  row.subject = work(setup->many);
  row.limit = work(setup->one);
  row.prepare = [setup] { setup->host.logger.messages.clear(); };
  return row;
}

struct ReportAny {
  static Any hold(const StoredArray<float, 1>& array) { return makeAny(array); }
  void operator()(Setup& setup, const Any& array) const {
    setup.plugIn.translation().getOutputAny(array, &setup.host.output);
  }
};

struct ReportValue {
  static Orvel::Value hold(const StoredArray<float, 1>& array) { return Orvel::makeValue(array); }
  void operator()(Setup& setup, const Orvel::Value& array) const {
    setup.plugIn.translation().getOutputValue(array, &setup.host.output);
  }
};

}  // namespace

std::vector<TimedRow> suppressedRows(const Scale& scale) {
  return {row("getOutputAny, limit 0, large against one", scale.memoryBytes, ReportAny{}),
          row("getOutputValue, limit 0, large against one", scale.memoryBytes, ReportValue{})};
}

}  // namespace vtlcmd::bench

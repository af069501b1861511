#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "floors/statistics_limits.h"
#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"
#include "rows/borrowed_array.h"
#include "rows/rows.h"
#include "vtlcmd/stand_in/geometry_builder.h"

namespace vtlcmd::bench {
namespace {

/// An Any of which a report has the statistics of the array: the array itself, or for what only
/// object reports know an object with such a property.
template <typename T>
Any reportedArray(const StoredArray<T, 1>& array) {
  if constexpr (Registered<T>) {
    return makeAny(array);
  } else {
    ObjectPtr object = Vantrel::createObject();
    Vantrel::Geometry::setDataProperty(*object, {"data", 4}, makeAny(array));
    return makeAny(std::move(object));
  }
}

template <typename T>
struct Setup {
  Setup(std::shared_ptr<PlugIn> loaded, Bytes data)
      : plugIn(std::move(loaded)), bytes(std::move(data)) {}

  void report(const Any& any) { plugIn->translation().getOutputAny(any, &host.output); }

  std::shared_ptr<PlugIn> plugIn;
  Host host;
  Bytes bytes;
  std::uint64_t size = bytes.size() / sizeof(T);
  Any whole = reportedArray<T>(arrayOver<T>(bytes, size));
  Any oneElement = reportedArray<T>(arrayOver<T>(bytes, 1));
};

template <typename T>
void addAll(const Setup<T>& setup) {
  if constexpr (std::is_integral_v<T>) {
    addWidest(setup.bytes.address(), setup.bytes.size());
  } else if constexpr (std::is_floating_point_v<T>) {
    addOneByOne(static_cast<const T*>(setup.bytes.address()), setup.size);
  } else {
    addVectorsOneByOne(static_cast<const float*>(setup.bytes.address()), setup.size,
                       T::componentCount);
  }
}

/// What a report of the array takes longer than one of an array of one element, against the
/// additions alone.
template <typename T>
TimedRow row(const char* where, const std::shared_ptr<PlugIn>& plugIn, const Bytes& bytes) {
  const auto setup = std::make_shared<Setup<T>>(plugIn, bytes);
  TimedRow row;
  row.name = std::string("statistics, ") + where + ", " + valueType<T>().name;
  row.elements = setup->size;
  row.subject = [setup](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) setup->report(setup->whole);
  };
  row.fixedPart = [setup](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) setup->report(setup->oneElement);
  };
  row.limit = [setup](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) addAll(*setup);
  };
  row.prepare = [setup] { setup->host.logger.messages.clear(); };
  return row;
}

/// Without one the statistics of 64-bit integers can't come near the limit.
bool hasWideMinimum() {
#if defined(__x86_64__)
  return __builtin_cpu_supports("avx512f") != 0;
#else
  return false;
#endif
}

/// How much longer than the additions alone, if that is known.
template <typename T>
std::optional<double> goalInCache() {
  if constexpr (std::is_floating_point_v<T>) {
    return 1.05;
  } else if constexpr (!std::is_integral_v<T>) {
    return 1.15;
  } else {
    return sizeof(T) < 8 || hasWideMinimum() ? std::optional(2.0) : std::nullopt;
  }
}

template <typename Function>
void forEachSummarised(Function function) {
  forEachRow(std::tuple_cat(registeredTypes, reportOnlyTypes), [&]<typename Row>(const Row&) {
    using T = typename Row::Type;
    if constexpr (Summarised<T>) function(std::type_identity<T>{});
  });
}

}  // namespace

std::vector<TimedRow> cachedStatisticsRows(const Scale& scale) {
  const auto plugIn = std::make_shared<PlugIn>();
  const Bytes bytes(scale.cachedBytes);
  std::vector<TimedRow> rows;
  forEachSummarised([&]<typename T>(std::type_identity<T>) {
    TimedRow row = bench::row<T>("in cache", plugIn, bytes);
    row.calls = std::is_integral_v<T> ? 20 : 4;
    row.pairs = 101;
    row.goal = goalInCache<T>();
    rows.push_back(std::move(row));
  });
  return rows;
}

std::vector<TimedRow> memoryStatisticsRows(const Scale& scale) {
  const auto plugIn = std::make_shared<PlugIn>();
  const Bytes bytes(scale.memoryBytes);
  std::vector<TimedRow> rows;
  forEachSummarised([&]<typename T>(std::type_identity<T>) {
    if constexpr (std::is_integral_v<T>) {
      TimedRow row = bench::row<T>("in memory", plugIn, bytes);
      row.pairs = 9;
      row.goal = 1.15;
      rows.push_back(std::move(row));
    }
  });
  return rows;
}

}  // namespace vtlcmd::bench

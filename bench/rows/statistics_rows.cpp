#include <memory>
#include <string>
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

template <typename... Types, typename Function>
void forEachType(Function function) {
  (function(std::type_identity<Types>{}), ...);
}

template <typename Function>
void forEachInteger(Function function) {
  forEachType<std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, std::int16_t, std::uint16_t,
              bool>(function);
}

}  // namespace

std::vector<TimedRow> cachedStatisticsRows(const Scale& scale) {
  const auto plugIn = std::make_shared<PlugIn>();
  const Bytes bytes(scale.cachedBytes);
  std::vector<TimedRow> rows;
  const auto add = [&]<typename T>(std::type_identity<T>, std::size_t calls,
                                   std::optional<double> goal) {
    TimedRow row = bench::row<T>("in cache", plugIn, bytes);
    row.calls = calls;
    row.pairs = 101;
    row.goal = goal;
    rows.push_back(std::move(row));
  };
  forEachType<float, double>([&](auto type) { add(type, 4, 1.05); });
  forEachType<Math::float2, Math::float3, Math::float4>([&](auto type) { add(type, 4, 1.15); });
  forEachInteger([&]<typename T>(std::type_identity<T> type) {
    const bool judged = sizeof(T) < 8 || hasWideMinimum();
    add(type, 20, judged ? std::optional(2.0) : std::nullopt);
  });
  return rows;
}

std::vector<TimedRow> memoryStatisticsRows(const Scale& scale) {
  const auto plugIn = std::make_shared<PlugIn>();
  const Bytes bytes(scale.memoryBytes);
  std::vector<TimedRow> rows;
  forEachInteger([&]<typename T>(std::type_identity<T>) {
    TimedRow row = bench::row<T>("in memory", plugIn, bytes);
    row.pairs = 9;
    row.goal = 1.15;
    rows.push_back(std::move(row));
  });
  return rows;
}

}  // namespace vtlcmd::bench

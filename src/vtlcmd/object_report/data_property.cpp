#include <array>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/object_report/object_report.h"
#include "vtlcmd/output/statistics/array_statistics.h"

namespace vtlcmd {
namespace {

/// One element type: the tag of its arrays, and what is printed for them.
struct Row {
  const Orvel::Internal::TypeInfo* tag;
  bool (*print)(const Any& value, TextBuilder& text, const Orvel::String& name);
};

template <typename T>
bool printStatistics(const Any& value, TextBuilder& text, const Orvel::String& name) {
  const StoredArray<T, 1> array = *anyCast<StoredArray<T, 1>>(&value);
  return printNamedArrayStatistics(text, name, *array);
}

bool printUnsupported(const Any&, TextBuilder& text, const Orvel::String& name) {
  text << "  " << name.c_str() << ": {non supported Data Geo Property}\n";
  return false;
}

template <typename T>
consteval Row rowOf() {
  if constexpr (Summarised<T>) {
    return {&typeTag<T, 1>, &printStatistics<T>};
  } else {
    return {&typeTag<T, 1>, &printUnsupported};
  }
}

template <typename... Elements>
consteval auto rowsOf() {
  return std::array{rowOf<Elements>()...};
}

/// Every element type of the lists but objects; which ones have statistics, their rows say. The
/// order is part of the report's form.
constexpr auto rows =
    rowsOf<std::int8_t, std::int16_t, std::int32_t, std::int64_t, std::uint8_t, std::uint16_t,
           std::uint32_t, std::uint64_t, bool, Orvel::String, float, double, Math::int2,
           Math::int2x2, Math::int2x3, Math::int3, Math::float2, Math::float4, Math::float3,
           Math::float2x2, Math::float2x3, Math::float3x3, Math::float4x4, Math::double2,
           Math::double3, Math::double4, Math::double2x2, Math::double2x3, Math::double3x3,
           Math::double4x4, Math::short2, Math::short2x2, Math::short2x3, Math::short3,
           Math::uchar3, Math::uchar4>();

static_assert(rows.size() == std::tuple_size_v<decltype(registeredTypes)> - 1 +
                                 std::tuple_size_v<decltype(reportOnlyTypes)>);

}  // namespace

bool printDataProperty(const Any& value, TextBuilder& text, const Orvel::String& name) {
  if (!value.holdsValue()) return false;
  for (const Row& row : rows) {
    if (any_operations::cast(value, *row.tag) != nullptr) return row.print(value, text, name);
  }
  return false;
}

}  // namespace vtlcmd

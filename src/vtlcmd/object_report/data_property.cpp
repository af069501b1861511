#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <tuple>

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

template <typename... Types>
consteval std::size_t countPlaces(const std::tuple<Types...>& types) {
  return (std::size_t{std::get<Types>(types).reportPlace != 0} + ...);
}

constexpr auto elementTypes = std::tuple_cat(registeredTypes, reportOnlyTypes);
using Rows = std::array<Row, countPlaces(elementTypes)>;

template <typename Type>
consteval void place(Rows& rows, const Type& type) {
  if (type.reportPlace != 0) rows[type.reportPlace - 1] = rowOf<typename Type::Type>();
}

template <typename... Types>
consteval Rows placed(const std::tuple<Types...>& types) {
  Rows rows{};
  (place(rows, std::get<Types>(types)), ...);
  return rows;
}

/// In the order of the types' places, which is part of the report's form.
constexpr Rows rows = placed(elementTypes);

template <typename... Types>
consteval bool haveOwnPlaces(const std::tuple<Types...>& types) {
  std::array<bool, rows.size() + 1> taken{};
  ((taken[std::get<Types>(types).reportPlace] = true), ...);
  return std::all_of(taken.begin() + 1, taken.end(), std::identity{});
}
static_assert(haveOwnPlaces(elementTypes));

}  // namespace

bool printDataProperty(const Any& value, TextBuilder& text, const Orvel::String& name) {
  if (!value.holdsValue()) return false;
  for (const Row& row : rows) {
    if (any_operations::cast(value, *row.tag) != nullptr) return row.print(value, text, name);
  }
  return false;
}

}  // namespace vtlcmd

#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/type_rows.h"
#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace vtlcmd::testing {

template <typename List>
struct TestTypesOf;
template <typename... Rows>
struct TestTypesOf<std::tuple<Rows...>> {
  using Types = ::testing::Types<typename Rows::Type...>;
};

template <template <typename> typename IsWanted, typename... Rows>
auto rowsWhere(const std::tuple<Rows...>&) -> decltype(std::tuple_cat(
    std::declval<std::conditional_t<IsWanted<typename Rows::Type>::value, std::tuple<Rows>,
                                    std::tuple<>>>()...));

/// The types, registered or only reported, that a trait holds of.
template <template <typename> typename IsWanted>
using TestTypesWhere = typename TestTypesOf<decltype(rowsWhere<IsWanted>(
    std::tuple_cat(registeredTypes, reportOnlyTypes)))>::Types;

using RegisteredTestTypes = TestTypesOf<std::remove_const_t<decltype(registeredTypes)>>::Types;
using ReportOnlyTestTypes = TestTypesOf<std::remove_const_t<decltype(reportOnlyTypes)>>::Types;
using ElementTestTypes =
    TestTypesOf<decltype(std::tuple_cat(registeredTypes, reportOnlyTypes))>::Types;

template <typename T>
using IsSummarised = std::bool_constant<Summarised<T>>;
using SummarisedTestTypes = TestTypesWhere<IsSummarised>;
/// With a number or truth value as their text.
template <typename T>
using IsScalar = std::bool_constant<Registered<T> && std::is_arithmetic_v<T>>;
using ScalarTestTypes = TestTypesWhere<IsScalar>;

template <Registered T>
const RegisteredRow<T>& rowOf() {
  return std::get<RegisteredRow<T>>(registeredRows);
}

/// In byte order, as the stand-in of the string library sorts.
inline std::vector<std::string> registeredNames() {
  std::set<std::string> names;
  forEachRow(registeredRows, [&](const auto& row) { names.insert(row.name); });
  return {names.begin(), names.end()};
}

/// The values of the two samples; an object is a new one each time.
template <Registered T>
T sampleValue(std::size_t which) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else {
    return rowOf<T>().samples[which].value;
  }
}

/// A shared array of the given elements.
template <typename T>
Orvel::Ptr<Orvel::Array<T>> arrayOf(const std::vector<T>& elements) {
  auto array = Orvel::makeMutable<Orvel::Array<T>>();
  for (const T& element : elements) array->append(element);
  return array;
}

/// An array at a rank of 1 or more, one element wide at each level, around `value`.
template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> nestedArray(const T& value) {
  if constexpr (Rank == 1) {
    return arrayOf<T>({value});
  } else {
    return arrayOf<StoredArray<T, Rank - 1>>({nestedArray<T, Rank - 1>(value)});
  }
}

}  // namespace vtlcmd::testing

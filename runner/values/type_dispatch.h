#pragma once

#include <string_view>
#include <type_traits>

#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {

/// Calls `function.operator()<T>()` with the stored type of the row of that name. False when the
/// list has none.
template <typename List, typename Function>
bool withTypeNamed(const List& list, std::string_view name, Function&& function) {
  const auto tryRow = [&]<typename Row>(const Row& row) {
    if (name != row.name) return false;
    function.template operator()<typename Row::Type>();
    return true;
  };
  return std::apply([&](const auto&... row) { return (tryRow(row) || ...); }, list);
}

/// The number types among the registered ones; `bool` is none.
template <typename T>
concept Number = Registered<T> && std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;

/// A vector or a matrix: a fixed row of components of one type.
template <typename T>
concept Composite = requires(T value) {
  value.components.size();
};

}  // namespace vtlcmd::runner

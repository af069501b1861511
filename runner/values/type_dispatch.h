#pragma once

#include <string_view>
#include <tuple>
#include <type_traits>

#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {

/// Calls `function.operator()<T>()` with the stored type of the row of that name. False when the
/// list has none.
template <typename... Row, typename Function>
bool withTypeNamed(const std::tuple<Row...>& list, std::string_view name, Function&& function) {
  return ((name == std::get<Row>(list).name &&
           (function.template operator()<typename Row::Type>(), true)) ||
          ...);
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

#pragma once

#include <concepts>
#include <cstddef>
#include <string_view>

#include "values/type_dispatch.h"

namespace vtlcmd::runner {

/// The shape of a matrix type; a matrix stores its components row by row.
template <typename T>
struct MatrixShape {};

template <typename Number, std::size_t Rows, std::size_t Columns>
struct MatrixShape<Math::Matrix<Number, Rows, Columns>> {
  using Component = Number;
  static constexpr std::size_t rows = Rows;
  static constexpr std::size_t columns = Columns;
};

/// A matrix of floats or doubles.
template <typename T>
concept FloatingMatrix = std::floating_point<typename MatrixShape<T>::Component>;

/// Calls `function.operator()<T>()` when the name is that of a matrix of floats or doubles.
template <typename Function>
bool withMatrix(std::string_view element, Function&& function) {
  bool isMatrix = false;
  withTypeNamed(reportOnlyTypes, element, [&]<typename T>() {
    if constexpr (FloatingMatrix<T>) {
      function.template operator()<T>();
      isMatrix = true;
    }
  });
  return isMatrix;
}

}  // namespace vtlcmd::runner

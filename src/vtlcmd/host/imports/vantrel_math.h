#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Vantrel::Math {

/// Components in order, a plain value without code of a library; the type library knows their
/// names, nothing here spells them.
template <typename Component, std::size_t Count>
struct Vector {
  using ComponentType = Component;
  static constexpr std::size_t componentCount = Count;

  std::array<Component, Count> components{};

  bool operator==(const Vector&) const = default;
};

template <typename Component, std::size_t Rows, std::size_t Columns>
struct Matrix {
  std::array<Component, Rows * Columns> components{};

  bool operator==(const Matrix&) const = default;
};

using float2 = Vector<float, 2>;
using float3 = Vector<float, 3>;
using float4 = Vector<float, 4>;
using double2 = Vector<double, 2>;
using double3 = Vector<double, 3>;
using double4 = Vector<double, 4>;
using int2 = Vector<std::int32_t, 2>;
using int3 = Vector<std::int32_t, 3>;
using short2 = Vector<std::int16_t, 2>;
using short3 = Vector<std::int16_t, 3>;
using uchar3 = Vector<std::uint8_t, 3>;
using uchar4 = Vector<std::uint8_t, 4>;

using int2x2 = Matrix<std::int32_t, 2, 2>;
using int2x3 = Matrix<std::int32_t, 2, 3>;
using short2x2 = Matrix<std::int16_t, 2, 2>;
using short2x3 = Matrix<std::int16_t, 2, 3>;
using float2x2 = Matrix<float, 2, 2>;
using float2x3 = Matrix<float, 2, 3>;
using float3x3 = Matrix<float, 3, 3>;
using float4x4 = Matrix<float, 4, 4>;
using double2x2 = Matrix<double, 2, 2>;
using double2x3 = Matrix<double, 2, 3>;
using double3x3 = Matrix<double, 3, 3>;
using double4x4 = Matrix<double, 4, 4>;

static_assert(sizeof(float3) == 12 && sizeof(double4) == 32 && sizeof(float4x4) == 64);

}  // namespace Vantrel::Math

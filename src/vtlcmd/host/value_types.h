#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/vantrel_math.h"
#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/host/imports/vantrel_records.h"
#include "vtlcmd/host/type_tags.h"

namespace vtlcmd {

/// What the lowest level of an array of a type shows.
enum class ArrayClass {
  /// Count, minimum, maximum and average of all elements.
  summarised,
  /// The first elements, up to the limit.
  listed,
  /// A note that the array isn't supported.
  refused,
};

/// Everything in which one registered type differs from the next. T is how a value is stored; it
/// is the row's key.
template <typename T>
struct RegisteredType {
  using Type = T;

  const char* name;
  std::string_view tagSpelling;
  std::uint8_t tagKind;
  /// Numbers in a value's text form; 0 where a value has no text form.
  std::size_t components;
  ArrayClass arrayClass;
  /// Ends the message about a text, or a vector's piece of text, that doesn't parse; null where
  /// nothing is parsed.
  const char* parseErrorEnd;
  /// When the object report asks whether an array is one of this type, counted from 1 through both
  /// lists; 0 where it never asks.
  std::size_t reportPlace;
};

namespace Math = Vantrel::Math;
using ObjectPtr = Orvel::Ptr<Vantrel::Object>;

/// The one list of the registered types, in the order of registration.
inline constexpr std::tuple registeredTypes{
    // clang-format off
    RegisteredType<bool>{           "bool",          "_N",                      0, 1, ArrayClass::summarised, "' to a bool value.",      9},
    RegisteredType<float>{          "float",         "M",                       0, 1, ArrayClass::summarised, "' to a float value.",     11},
    RegisteredType<double>{         "double",        "N",                       0, 1, ArrayClass::summarised, "' to a double value.",    12},
    RegisteredType<std::int32_t>{   "int",           "H",                       0, 1, ArrayClass::summarised, "' to an int value.",      3},
    RegisteredType<std::uint32_t>{  "uint",          "I",                       0, 1, ArrayClass::summarised, "' to a uint value.",      7},
    RegisteredType<std::int64_t>{   "long",          "_J",                      0, 1, ArrayClass::summarised, "' to a long value.",      4},
    RegisteredType<std::uint64_t>{  "ulong",         "_K",                      0, 1, ArrayClass::summarised, "' to a ulong value.",     8},
    RegisteredType<Math::float2>{   "Math::float2",  "Ufloat2@Math@Vantrel@@",  0, 2, ArrayClass::summarised, "' to a float value.",     17},
    RegisteredType<Math::float3>{   "Math::float3",  "Ufloat3@Math@Vantrel@@",  0, 3, ArrayClass::summarised, "' to a float value.",     19},
    RegisteredType<Math::float4>{   "Math::float4",  "Ufloat4@Math@Vantrel@@",  0, 4, ArrayClass::summarised, "' to a float value.",     18},
    RegisteredType<Math::double2>{  "Math::double2", "Udouble2@Math@Vantrel@@", 0, 2, ArrayClass::refused,    "' to a double value.",    24},
    RegisteredType<Math::double3>{  "Math::double3", "Udouble3@Math@Vantrel@@", 0, 3, ArrayClass::refused,    "' to a double value.",    25},
    RegisteredType<Math::double4>{  "Math::double4", "Udouble4@Math@Vantrel@@", 0, 4, ArrayClass::refused,    "' to a double value.",    26},
    RegisteredType<ObjectPtr>{      "Object",        "VObject@Vantrel@@",       2, 0, ArrayClass::listed,     nullptr,                   0},
    RegisteredType<Orvel::String>{  "string",        "VString@Orvel@@",         0, 1, ArrayClass::listed,     nullptr,                   10},
    // clang-format on
};

/// The ranks of a registered type that have a tag: 0, a single value, to 3.
inline constexpr std::uint32_t registeredRanks = 4;

/// A record that the plug-in fills itself; it has a tag at rank 0 and no handlers.
template <typename T>
struct InputOnlyType {
  using Type = T;

  const char* name;
  std::string_view tagSpelling;
  std::uint8_t tagKind;
};

inline constexpr std::tuple inputOnlyTypes{
    InputOnlyType<Vantrel::Simulation::Time>{"Simulation::Time", "UTime@Simulation@Vantrel@@", 0},
    InputOnlyType<Vantrel::File::Project::SceneInfo>{"File::Project::SceneInfo",
                                                     "USceneInfo@Project@File@Vantrel@@", 0},
};

/// An element type that only the object report meets, in arrays; it has a tag at rank 1.
template <typename T>
struct ReportOnlyType {
  using Type = T;

  const char* name;
  std::string_view tagSpelling;
  std::uint8_t tagKind;
  ArrayClass arrayClass;
  /// As a registered type's.
  std::size_t reportPlace;
};

/// The one list of the types known to reports only.
inline constexpr std::tuple reportOnlyTypes{
    // clang-format off
    ReportOnlyType<std::int8_t>{    "signed char",     "C",                         0, ArrayClass::refused,    1},
    ReportOnlyType<std::uint8_t>{   "unsigned char",   "E",                         0, ArrayClass::refused,    5},
    ReportOnlyType<std::int16_t>{   "short",           "F",                         0, ArrayClass::summarised, 2},
    ReportOnlyType<std::uint16_t>{  "ushort",          "G",                         0, ArrayClass::summarised, 6},
    ReportOnlyType<Math::int2>{     "Math::int2",      "Uint2@Math@Vantrel@@",      0, ArrayClass::refused,    13},
    ReportOnlyType<Math::int3>{     "Math::int3",      "Uint3@Math@Vantrel@@",      0, ArrayClass::refused,    16},
    ReportOnlyType<Math::int2x2>{   "Math::int2x2",    "Uint2x2@Math@Vantrel@@",    0, ArrayClass::refused,    14},
    ReportOnlyType<Math::int2x3>{   "Math::int2x3",    "Uint2x3@Math@Vantrel@@",    0, ArrayClass::refused,    15},
    ReportOnlyType<Math::short2>{   "Math::short2",    "Ushort2@Math@Vantrel@@",    0, ArrayClass::refused,    31},
    ReportOnlyType<Math::short3>{   "Math::short3",    "Ushort3@Math@Vantrel@@",    0, ArrayClass::refused,    34},
    ReportOnlyType<Math::short2x2>{ "Math::short2x2",  "Ushort2x2@Math@Vantrel@@",  0, ArrayClass::refused,    32},
    ReportOnlyType<Math::short2x3>{ "Math::short2x3",  "Ushort2x3@Math@Vantrel@@",  0, ArrayClass::refused,    33},
    ReportOnlyType<Math::uchar3>{   "Math::uchar3",    "Uuchar3@Math@Vantrel@@",    0, ArrayClass::refused,    35},
    ReportOnlyType<Math::uchar4>{   "Math::uchar4",    "Uuchar4@Math@Vantrel@@",    0, ArrayClass::refused,    36},
    ReportOnlyType<Math::float2x2>{ "Math::float2x2",  "Ufloat2x2@Math@Vantrel@@",  0, ArrayClass::refused,    20},
    ReportOnlyType<Math::float2x3>{ "Math::float2x3",  "Ufloat2x3@Math@Vantrel@@",  0, ArrayClass::refused,    21},
    ReportOnlyType<Math::float3x3>{ "Math::float3x3",  "Ufloat3x3@Math@Vantrel@@",  0, ArrayClass::refused,    22},
    ReportOnlyType<Math::float4x4>{ "Math::float4x4",  "Ufloat4x4@Math@Vantrel@@",  0, ArrayClass::refused,    23},
    ReportOnlyType<Math::double2x2>{"Math::double2x2", "Udouble2x2@Math@Vantrel@@", 0, ArrayClass::refused,    27},
    ReportOnlyType<Math::double2x3>{"Math::double2x3", "Udouble2x3@Math@Vantrel@@", 0, ArrayClass::refused,    28},
    ReportOnlyType<Math::double3x3>{"Math::double3x3", "Udouble3x3@Math@Vantrel@@", 0, ArrayClass::refused,    29},
    ReportOnlyType<Math::double4x4>{"Math::double4x4", "Udouble4x4@Math@Vantrel@@", 0, ArrayClass::refused,    30},
    // clang-format on
};

namespace type_lists {

template <typename Row, typename List>
inline constexpr bool contains = false;
template <typename Row, typename... Rows>
inline constexpr bool contains<Row, const std::tuple<Rows...>> = (std::is_same_v<Row, Rows> || ...);

/// A stored type taken apart: T for a single value, for arrays the innermost element and the
/// nesting.
template <typename Stored>
struct Nesting {
  using Element = Stored;
  static constexpr std::uint32_t rank = 0;
};
template <typename Inner>
struct Nesting<Orvel::Ptr<Orvel::Array<Inner>>> {
  using Element = typename Nesting<Inner>::Element;
  static constexpr std::uint32_t rank = Nesting<Inner>::rank + 1;
};

}  // namespace type_lists

template <typename T>
concept Registered = (type_lists::contains<RegisteredType<T>, decltype(registeredTypes)>);
template <typename T>
concept InputOnly = (type_lists::contains<InputOnlyType<T>, decltype(inputOnlyTypes)>);
template <typename T>
concept ReportOnly = (type_lists::contains<ReportOnlyType<T>, decltype(reportOnlyTypes)>);

/// The row of a type in whichever list has it.
template <typename T>
constexpr const auto& valueType() {
  if constexpr (Registered<T>) {
    return std::get<RegisteredType<T>>(registeredTypes);
  } else if constexpr (InputOnly<T>) {
    return std::get<InputOnlyType<T>>(inputOnlyTypes);
  } else {
    static_assert(ReportOnly<T>, "the type stands in none of the lists");
    return std::get<ReportOnlyType<T>>(reportOnlyTypes);
  }
}

/// Calls `function` with each row of a list, in order.
template <typename List, typename Function>
constexpr void forEachRow(const List& list, Function&& function) {
  std::apply([&](const auto&... row) { (function(row), ...); }, list);
}

template <typename T, std::uint32_t Rank>
concept Tagged = (Registered<T> && Rank < registeredRanks) || (InputOnly<T> && Rank == 0) ||
                 (ReportOnly<T> && Rank == 1);

/// An element type of which reports show the statistics of arrays.
template <typename T>
concept Summarised = requires {
  requires Tagged<T, 1>;
  requires(valueType<T>().arrayClass == ArrayClass::summarised);
};

/// The static tag of T at an array rank.
template <typename T, std::uint32_t Rank>
requires Tagged<T, Rank>
inline constexpr Orvel::Internal::TypeInfo typeTag =
    makeTag(valueType<T>().tagSpelling, valueType<T>().tagKind, Rank);

/// A type that an Any of ours can hold: a listed type, or its arrays by shared pointer.
template <typename Stored>
concept Storable =
    Tagged<typename type_lists::Nesting<Stored>::Element, type_lists::Nesting<Stored>::rank>;

template <Storable Stored>
constexpr const Orvel::Internal::TypeInfo& tagOf() noexcept {
  using Nesting = type_lists::Nesting<Stored>;
  return typeTag<typename Nesting::Element, Nesting::rank>;
}

/// An Any that holds `value`.
template <Storable Stored>
Any makeAny(Stored value) {
  using Nesting = type_lists::Nesting<Stored>;
  return makeTaggedAny<typeTag<typename Nesting::Element, Nesting::rank>>(std::move(value));
}

/// The held value, or null: for a null or empty Any, and for one of another type.
template <Storable Stored>
const Stored* anyCast(const Any* any) {
  if (any == nullptr || !any->holdsValue()) return nullptr;
  return static_cast<const Stored*>(any_operations::cast(*any, tagOf<Stored>()));
}

/// An array of T at a rank as an Any holds it.
template <typename T, std::uint32_t Rank>
struct StoredArrayOf {
  using Type = Orvel::Ptr<Orvel::Array<typename StoredArrayOf<T, Rank - 1>::Type>>;
};
template <typename T>
struct StoredArrayOf<T, 0> {
  using Type = T;
};
template <typename T, std::uint32_t Rank>
using StoredArray = typename StoredArrayOf<T, Rank>::Type;

}  // namespace vtlcmd

#pragma once

#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

/// Values to put through a plug-in, and their texts.

namespace vtlcmd::validator {

template <Registered T>
struct Sample {
  /// What a port of T takes; null for a type without text form.
  const char* text;
  /// How the value reads in a report.
  const char* report;
  /// A text that T refuses.
  const char* badText;
  /// What the bad text's message quotes.
  const char* badPiece;
  const char* zeroReport;
};

inline constexpr std::tuple samples{
    // clang-format off
    Sample<bool>{"true", "true", "yes", "yes", "false"},
    Sample<float>{"1.5", "1.5", "1.5x", "1.5x", "0"},
    Sample<double>{"2.25", "2.25", "inf", "inf", "0"},
    Sample<std::int32_t>{"-12", "-12", "12abc", "12abc", "0"},
    Sample<std::uint32_t>{"4294967295", "4294967295", "-1", "-1", "0"},
    Sample<std::int64_t>{"-9000000000", "-9000000000", "1e3", "1e3", "0"},
    Sample<std::uint64_t>{"18446744073709551615", "18446744073709551615", "0x10", "0x10", "0"},
    Sample<Math::float2>{"1,2.5", "{1, 2.5}", "1,x", "x", "{0, 0}"},
    Sample<Math::float3>{"1,2.5,3", "{1, 2.5, 3}", "1,x,3", "x", "{0, 0, 0}"},
    Sample<Math::float4>{"1,2.5,3,4", "{1, 2.5, 3, 4}", "1,2,,4", "", "{0, 0, 0, 0}"},
    Sample<Math::double2>{"1,2.5", "{1, 2.5}", " y,2", " y", "{0, 0}"},
    Sample<Math::double3>{"1,2.5,3", "{1, 2.5, 3}", "1,2,nan", "nan", "{0, 0, 0}"},
    Sample<Math::double4>{"1,2.5,3,4", "{1, 2.5, 3, 4}", "1,2,3,4 5", "4 5", "{0, 0, 0, 0}"},
    Sample<ObjectPtr>{nullptr, "{\n}", "{}", nullptr, "{\n}"},
    Sample<Orvel::String>{"some, \"text\"", R"("some, "text"")", nullptr, nullptr, "\"\""},
    // clang-format on
};

template <Registered T>
constexpr const Sample<T>& sampleOf() {
  return std::get<Sample<T>>(samples);
}

/// The value of the sample's text; a new object for `Object`.
template <Registered T>
T sampleValue() {
  if constexpr (std::is_same_v<T, bool>) {
    return true;
  } else if constexpr (std::is_same_v<T, float>) {
    return 1.5F;
  } else if constexpr (std::is_same_v<T, double>) {
    return 2.25;
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return -12;
  } else if constexpr (std::is_same_v<T, std::uint32_t>) {
    return 4294967295U;
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    return -9000000000;
  } else if constexpr (std::is_same_v<T, std::uint64_t>) {
    return 18446744073709551615U;
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return "some, \"text\"";
  } else {
    T vector;
    for (std::size_t i = 0; i < T::componentCount; ++i)
      vector.components[i] = static_cast<typename T::ComponentType>(i == 1 ? 2.5 : double(i) + 1);
    return vector;
  }
}

template <Registered T>
T zeroValue() {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else {
    return T{};
  }
}

/// Objects are alike when both or neither are there.
template <Registered T>
bool alike(const T& a, const T& b) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return (a.get() == nullptr) == (b.get() == nullptr);
  } else {
    return a == b;
  }
}

template <typename T>
Orvel::Ptr<Orvel::Array<T>> arrayOf(const std::vector<T>& elements) {
  auto array = Orvel::makeMutable<Orvel::Array<T>>();
  for (const T& element : elements) array->append(element);
  return array;
}

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the linter loses track of use counts
/// One element wide at each level.
template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> nestedArray(const T& value) {
  if constexpr (Rank == 1) {
    return arrayOf<T>({value});
  } else {
    return arrayOf<StoredArray<T, Rank - 1>>({nestedArray<T, Rank - 1>(value)});
  }
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

/// Calls `function` with a type's row, once a registered type.
template <typename Function>
void forEachRegistered(const Function& function) {
  forEachRow(registeredTypes, function);
}

template <typename Row>
using TypeOf = typename std::remove_cvref_t<Row>::Type;

}  // namespace vtlcmd::validator

#pragma once

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace vtlcmd::testing {

template <typename List>
struct TestTypesOf;
template <typename... Rows>
struct TestTypesOf<const std::tuple<Rows...>> {
  using Types = ::testing::Types<typename Rows::Type...>;
};

using RegisteredTestTypes = TestTypesOf<decltype(registeredTypes)>::Types;
using ReportOnlyTestTypes = TestTypesOf<decltype(reportOnlyTypes)>::Types;

/// Two texts that a port of T takes, what they read as in a report, and the text of T's zero.
/// An object has no text; its samples are new objects.
template <Registered T>
struct Sample {
  const char* text;
  const char* report;
  const char* otherText;
  const char* otherReport;
  const char* zeroReport;
};

inline constexpr std::tuple samples{
    Sample<bool>{"true", "true", "false", "false", "false"},
    Sample<float>{"1.5", "1.5", "-2e10", "-2e+10", "0"},
    Sample<double>{"2.25", "2.25", "1e300", "1e+300", "0"},
    Sample<std::int32_t>{"-12", "-12", "7", "7", "0"},
    Sample<std::uint32_t>{"12", "12", "4294967295", "4294967295", "0"},
    Sample<std::int64_t>{"-9000000000", "-9000000000", "1", "1", "0"},
    Sample<std::uint64_t>{"18446744073709551615", "18446744073709551615", "2", "2", "0"},
    Sample<Math::float2>{"1,2.5", "{1, 2.5}", "3,4", "{3, 4}", "{0, 0}"},
    Sample<Math::float3>{"1,2.5,3", "{1, 2.5, 3}", "4,5,6", "{4, 5, 6}", "{0, 0, 0}"},
    Sample<Math::float4>{"1,2.5,3,4", "{1, 2.5, 3, 4}", "5,6,7,8", "{5, 6, 7, 8}", "{0, 0, 0, 0}"},
    Sample<Math::double2>{"1,2.5", "{1, 2.5}", "3,4", "{3, 4}", "{0, 0}"},
    Sample<Math::double3>{"1,2.5,3", "{1, 2.5, 3}", "4,5,6", "{4, 5, 6}", "{0, 0, 0}"},
    Sample<Math::double4>{"1,2.5,3,4", "{1, 2.5, 3, 4}", "5,6,7,8", "{5, 6, 7, 8}", "{0, 0, 0, 0}"},
    Sample<ObjectPtr>{nullptr, "{\n}", nullptr, "{\n}",
                      "{\n  No object produced, verify your inputs.\n}"},
    Sample<Orvel::String>{"some text", "\"some text\"", "other", "\"other\"", "\"\""},
};

template <Registered T>
constexpr const Sample<T>& sampleOf() {
  return std::get<Sample<T>>(samples);
}

/// The values of the two sample texts.
template <Registered T>
T sampleValue(int which) {
  if constexpr (std::is_same_v<T, bool>) {
    return which == 0;
  } else if constexpr (std::is_same_v<T, float>) {
    return which == 0 ? 1.5F : -2e10F;
  } else if constexpr (std::is_same_v<T, double>) {
    return which == 0 ? 2.25 : 1e300;
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return which == 0 ? -12 : 7;
  } else if constexpr (std::is_same_v<T, std::uint32_t>) {
    return which == 0 ? 12 : 4294967295;
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    return which == 0 ? -9000000000 : 1;
  } else if constexpr (std::is_same_v<T, std::uint64_t>) {
    return which == 0 ? 18446744073709551615U : 2;
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return which == 0 ? "some text" : "other";
  } else {
    T vector;
    using Component = typename T::ComponentType;
    for (std::size_t i = 0; i < T::componentCount; ++i) {
      vector.components[i] = static_cast<Component>(i + 1);
      if (which == 1) vector.components[i] += static_cast<Component>(T::componentCount);
    }
    if (which == 0) vector.components[1] = static_cast<Component>(2.5);
    return vector;
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

#pragma once

#include <gtest/gtest.h>
#include <type_traits>

#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/stored_types.h"

namespace Orvel::testing {

using vtlcmd::StoredArray;

/// Calls `check` with each element type of `storedTypes` as its template argument.
template <typename Check>
void forEachStoredElement(Check check) {
  vtlcmd::forEachRow(storedTypes, [&](const auto& row) {
    SCOPED_TRACE(row.name);
    check.template operator()<typename std::remove_cvref_t<decltype(row)>::Type>();
  });
}

/// A value of which no part is zero, another one for each number from 0.
template <StoredElement T>
T sample(int number) {
  if constexpr (std::is_same_v<T, bool>) {
    return true;
  } else if constexpr (std::is_arithmetic_v<T>) {
    return static_cast<T>(number + 3);
  } else if constexpr (std::is_same_v<T, String>) {
    return String("text ") + (number == 0 ? "zero" : "more");
  } else if constexpr (std::is_same_v<T, vtlcmd::ObjectPtr>) {
    return Vantrel::createObject();
  } else if constexpr (std::is_same_v<T, Vantrel::Simulation::Time>) {
    return {number + 1, 0.5, 12.25, 0.125};
  } else if constexpr (std::is_same_v<T, Vantrel::File::Project::SceneInfo>) {
    return {sample<String>(number), "directory/", "second/path", true};
  } else {
    T value;
    int component = number;
    for (auto& place : value.components) {
      place = static_cast<std::remove_cvref_t<decltype(place)>>(++component);
    }
    return value;
  }
}

/// Whether two values are the same; objects and arrays by identity.
template <typename T>
bool same(const T& a, const T& b) {
  if constexpr (requires { a.control; }) {
    return a.pointer == b.pointer && a.control == b.control;
  } else if constexpr (std::is_same_v<T, Vantrel::Simulation::Time>) {
    return a.mode == b.mode && a.time == b.time && a.frame == b.frame &&
           a.frameLength == b.frameLength;
  } else if constexpr (std::is_same_v<T, Vantrel::File::Project::SceneInfo>) {
    return a.fileName == b.fileName && a.directory == b.directory &&
           a.secondaryPath == b.secondaryPath && a.hasSecondaryPath == b.hasSecondaryPath;
  } else {
    return a == b;
  }
}

/// Two elements at each level: `sample` 0 and 1 in the innermost arrays.
template <StoredElement T, std::uint32_t Depth>
StoredArray<T, Depth> sampleArray() {
  auto array = makeMutable<Array<StoredArray<T, Depth - 1>>>();
  if constexpr (Depth == 1) {
    array->append(sample<T>(0));
    array->append(sample<T>(1));
  } else {
    array->append(sampleArray<T, Depth - 1>());
    array->append(sampleArray<T, Depth - 1>());
  }
  return array;
}

/// The deepest arrays that tests of every type make, one level more than has a tag in the type
/// table.
inline constexpr std::uint32_t deepest = 4;

/// Calls `check` with a sample of every element type and of its array, and with samples of arrays
/// of arrays, whose elements are all of one kind, up to a depth to which nobody nests.
template <typename Check>
void forEachStoredType(Check check) {
  forEachStoredElement([&]<typename T>() {
    check(sample<T>(0));
    check(sampleArray<T, 1>());
  });
  check(sampleArray<bool, 2>());
  check(sampleArray<vtlcmd::ObjectPtr, 3>());
  check(sampleArray<std::int16_t, 3>());
  check(sampleArray<float, 4>());
  check(sampleArray<std::int32_t, 5>());
  check(sampleArray<String, 6>());
}

}  // namespace Orvel::testing

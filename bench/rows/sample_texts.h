#pragma once

#include <string>
#include <type_traits>

#include "floors/input_floor.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::bench {

/// A text that a port of T takes.
template <Registered T>
std::string sampleText() {
  if constexpr (std::is_same_v<T, bool>) {
    return "true";
  } else if constexpr (std::is_integral_v<T>) {
    return "1234567";
  } else if constexpr (std::is_floating_point_v<T>) {
    return "3.14159";
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return "some text";
  } else {
    std::string text = "3.14159";
    for (std::size_t i = 1; i < T::componentCount; ++i) text += ",-0.25";
    return text;
  }
}

/// The text's value; for an object, which has no text, a new one.
template <Registered T>
T sampleValue() {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else {
    return readText<T>(sampleText<T>().c_str());
  }
}

}  // namespace vtlcmd::bench

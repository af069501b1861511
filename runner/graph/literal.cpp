#include "graph/literal.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "orvel_sdk/type_factory.h"
#include "text/library_text.h"
#include "values/library_array.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner {
namespace {

using nlohmann::json;

template <typename T>
T read(const JsonPlace& place, std::string_view typeName);

template <typename T>
[[noreturn]] void misfit(const JsonPlace& place, std::string_view typeName) {
  place.fail("expected a value of type " + std::string(typeName) + ", found " +
             excerptOf(place.value()));
}

template <std::integral T>
std::optional<T> readInteger(const json& value) {
  if (value.is_number_unsigned()) {
    const auto number = value.get<std::uint64_t>();
    if (std::in_range<T>(number)) return static_cast<T>(number);
  } else if (value.is_number_integer()) {
    const auto number = value.get<std::int64_t>();
    if (std::in_range<T>(number)) return static_cast<T>(number);
  }
  return std::nullopt;
}

/// The least number that rounds up beyond the range of T.
template <std::floating_point T>
constexpr double firstBeyond = std::numeric_limits<double>::infinity();
template <>
constexpr double firstBeyond<float> = 0x1.ffffffp127;

template <std::floating_point T>
std::optional<T> readFloating(const json& value) {
  using Limits = std::numeric_limits<T>;
  if (value.is_number_unsigned()) return static_cast<T>(value.get<std::uint64_t>());
  if (value.is_number_integer()) return static_cast<T>(value.get<std::int64_t>());
  if (value.is_number_float()) {
    const auto number = value.get<double>();
    if (std::abs(number) < firstBeyond<T>) return static_cast<T>(number);
  }
  if (value == "nan") return Limits::quiet_NaN();
  if (value == "inf") return Limits::infinity();
  if (value == "-inf") return -Limits::infinity();
  return std::nullopt;
}

template <typename T>
std::optional<T> readSingle(const json& value) {
  if constexpr (std::is_same_v<T, bool>) {
    if (value.is_boolean()) return value.get<bool>();
  } else if constexpr (std::is_integral_v<T>) {
    return readInteger<T>(value);
  } else if constexpr (std::is_floating_point_v<T>) {
    return readFloating<T>(value);
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    if (value.is_string()) return libraryText(value.get_ref<const std::string&>());
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    if (value.is_null()) return ObjectPtr();
  }
  return std::nullopt;
}

template <Composite T>
T readComposite(const JsonPlace& place, std::string_view typeName) {
  T result;
  const json& value = place.value();
  if (!value.is_array() || value.size() != result.components.size()) {
    place.fail("expected the " + std::to_string(result.components.size()) + " components of a " +
               std::string(typeName) + ", found " +
               (value.is_array() ? std::to_string(value.size()) + " elements" : excerptOf(value)));
  }
  const std::vector<JsonPlace> components = place.elements();
  for (std::size_t i = 0; i < components.size(); ++i) {
    using Component = typename decltype(result.components)::value_type;
    const std::optional<Component> component = readSingle<Component>(components[i].value());
    if (!component) {
      components[i].fail("expected a component of a " + std::string(typeName) + ", found " +
                         excerptOf(components[i].value()));
    }
    result.components[i] = *component;
  }
  return result;
}

template <typename T>
T read(const JsonPlace& place, std::string_view typeName) {
  if constexpr (Composite<T>) {
    return readComposite<T>(place, typeName);
  } else {
    std::optional<T> single = readSingle<T>(place.value());
    if (!single) misfit<T>(place, typeName);
    return *std::move(single);
  }
}

template <typename T>
Orvel::Value readValue(const ValueType& type, const JsonPlace& place) {
  if (type.depth == 0) return Orvel::makeValue(read<T>(place, type.element));
  const std::vector<JsonPlace> elements = place.elements();
  if (type.depth == 1) {
    return arrayValue(generateArray<T>(
        elements.size(), [&](std::uint64_t i) { return read<T>(elements[i], type.element); }));
  }
  const ValueType elementType = elementOf(type);
  std::vector<Orvel::Value> values;
  values.reserve(elements.size());
  for (const JsonPlace& element : elements) values.push_back(readValue<T>(elementType, element));
  return Orvel::makeArray(libraryTypeOf(elementType), values);
}

}  // namespace

Orvel::Value literalValue(const ValueType& type, const JsonPlace& json) {
  std::optional<Orvel::Value> value;
  const auto readAs = [&]<typename T>() { value.emplace(readValue<T>(type, json)); };
  const bool known = withTypeNamed(registeredTypes, type.element, readAs) ||
                     withTypeNamed(reportOnlyTypes, type.element, readAs);
  if (!known) json.fail("a value of type " + nameOf(type) + " can't be written down");
  return *value;
}

}  // namespace vtlcmd::runner

#include "graph/literal.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "text/library_text.h"
#include "values/type_dispatch.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

template <typename T>
T read(const JsonPlace& place, std::string_view typeName);

template <typename T>
[[noreturn]] void misfit(const JsonPlace& place, std::string_view typeName) {
  place.fail("expected a value of type " + std::string(typeName) + ", found " + place.excerpt());
}

template <std::integral T>
std::optional<T> readInteger(const JsonScalar& value) {
  const auto inRange = [](auto number) {
    return std::in_range<T>(number) ? std::optional(static_cast<T>(number)) : std::nullopt;
  };
  if (const auto* number = std::get_if<std::uint64_t>(&value)) return inRange(*number);
  if (const auto* number = std::get_if<std::int64_t>(&value)) return inRange(*number);
  return std::nullopt;
}

/// The least number that rounds up beyond the range of T.
template <std::floating_point T>
constexpr double firstBeyond = std::numeric_limits<double>::infinity();
template <>
constexpr double firstBeyond<float> = 0x1.ffffffp127;

template <std::floating_point T>
std::optional<T> readFloating(const JsonScalar& value) {
  using Limits = std::numeric_limits<T>;
  if (const auto* number = std::get_if<std::uint64_t>(&value)) return static_cast<T>(*number);
  if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<T>(*number);
  if (const auto* number = std::get_if<double>(&value))
    return std::abs(*number) < firstBeyond<T> ? std::optional(static_cast<T>(*number))
                                              : std::nullopt;
  if (const auto* text = std::get_if<std::string_view>(&value)) {
    if (*text == "nan") return Limits::quiet_NaN();
    if (*text == "inf") return Limits::infinity();
    if (*text == "-inf") return -Limits::infinity();
  }
  return std::nullopt;
}

template <typename T>
std::optional<T> readSingle(const JsonScalar& value) {
  if constexpr (std::is_same_v<T, bool>) {
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean;
  } else if constexpr (std::is_integral_v<T>) {
    return readInteger<T>(value);
  } else if constexpr (std::is_floating_point_v<T>) {
    return readFloating<T>(value);
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    if (const auto* text = std::get_if<std::string_view>(&value)) return libraryText(*text);
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    if (std::holds_alternative<std::nullptr_t>(value)) return ObjectPtr();
  }
  return std::nullopt;
}

template <Composite T>
T readComposite(const JsonPlace& place, std::string_view typeName) {
  T result;
  if (!place.isArray() || place.elementCount() != result.components.size()) {
    place.fail(
        "expected the " + std::to_string(result.components.size()) + " components of a " +
        std::string(typeName) + ", found " +
        (place.isArray() ? std::to_string(place.elementCount()) + " elements" : place.excerpt()));
  }
  const std::vector<JsonPlace> components = place.elements();
  for (std::size_t i = 0; i < components.size(); ++i) {
    using Component = typename decltype(result.components)::value_type;
    const std::optional<Component> component = readSingle<Component>(components[i].scalar());
    if (!component) {
      components[i].fail("expected a component of a " + std::string(typeName) + ", found " +
                         components[i].excerpt());
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
    std::optional<T> single = readSingle<T>(place.scalar());
    if (!single) misfit<T>(place, typeName);
    return *std::move(single);
  }
}

using ReadElement = Orvel::Value (*)(const JsonPlace& place, std::string_view typeName);

template <typename T>
Orvel::Value readElement(const JsonPlace& place, std::string_view typeName) {
  return Orvel::makeValue(read<T>(place, typeName));
}

/// Null for a type that can't be written down.
ReadElement readerOf(std::string_view typeName) {
  ReadElement reader = nullptr;
  const auto use = [&]<typename T>() { reader = readElement<T>; };
  if (!withTypeNamed(registeredTypes, typeName, use)) withTypeNamed(reportOnlyTypes, typeName, use);
  return reader;
}

Orvel::Value readValue(const ValueType& type, ReadElement readElement, const JsonPlace& place) {
  if (type.depth == 0) return readElement(place, type.element);
  const ValueType elementType = elementOf(type);
  const std::vector<JsonPlace> elements = place.elements();
  std::vector<Orvel::Value> values;
  values.reserve(elements.size());
  for (const JsonPlace& element : elements)
    values.push_back(readValue(elementType, readElement, element));
  return Orvel::makeArray(libraryTypeOf(elementType), values);
}

}  // namespace

Orvel::Value literalValue(const ValueType& type, const JsonPlace& json) {
  const ReadElement readElement = readerOf(type.element);
  if (readElement == nullptr)
    json.fail("a value of type " + nameOf(type) + " can't be written down");
  return readValue(type, readElement, json);
}

}  // namespace vtlcmd::runner

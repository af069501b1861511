#include "command_line/default_text.h"

#include <cmath>
#include <limits>

#include "command_line/port_kinds.h"
#include "text/json.h"
#include "text/shortest_text.h"
#include "values/type_dispatch.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

/// Whether a text of the number is taken for a T.
template <typename T>
bool isTaken(double number) {
  const double magnitude = std::abs(number);
  return magnitude == 0 || (magnitude >= double{std::numeric_limits<T>::min()} &&
                            magnitude <= double{std::numeric_limits<T>::max()});
}

/// `json` is how the value is written in the graph.
template <typename T>
std::optional<std::string> numberText(const Json& json, T value) {
  if constexpr (std::is_floating_point_v<T>) {
    if (json.is_number() && isTaken<T>(json.get<double>())) return json.dump();
    // At the edges of a type a short text may lie outside, and the value that it stands for within.
    if (isTaken<T>(value)) return shortestText(value);
    return std::nullopt;
  } else {
    return json.dump();
  }
}

template <typename T>
std::optional<std::string> vectorText(const Json& json, const T& vector) {
  std::string text;
  for (std::size_t i = 0; i < vector.components.size(); ++i) {
    const std::optional<std::string> number = numberText(json[i], vector.components[i]);
    if (!number) return std::nullopt;
    text += (i == 0 ? "" : ",") + *number;
  }
  return text;
}

}  // namespace

std::optional<std::string> defaultAsText(const GraphPort& port) {
  if (!port.defaultValue || portKindOf(port.type).source != PortSource::text) return std::nullopt;
  const Json json = parseJson(port.defaultText);
  std::optional<std::string> text;
  withTypeNamed(registeredTypes, port.type.element, [&]<typename T>() {
    if constexpr (Composite<T>) {
      text = vectorText(json, Orvel::valueAs<T>(*port.defaultValue));
    } else if constexpr (Number<T>) {
      text = numberText(json, Orvel::valueAs<T>(*port.defaultValue));
    } else if constexpr (std::is_same_v<T, bool>) {
      text = json.dump();
    } else if constexpr (std::is_same_v<T, Orvel::String>) {
      text = json.get<std::string>();
    }
  });
  return text;
}

}  // namespace vtlcmd::runner

#include "report/drawn_value.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <type_traits>
#include <utility>
#include <vector>

#include "oracle/statistics_model.h"
#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::fuzz {
namespace {

constexpr std::size_t mostElements = 20;

/// As printf writes it, in place of a stream.
template <typename Number>
std::string numberText(Number number) {
  if constexpr (std::is_integral_v<Number>) {
    return std::to_string(number);
  } else {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%g", static_cast<double>(number));
    return text.data();
  }
}

template <typename T>
struct Element {
  T value;
  std::string text;
};

template <typename T>
Element<T> drawElement(Input& input) {
  if constexpr (std::is_same_v<T, bool>) {
    const bool value = input.below(2) == 1;
    return {value, value ? "true" : "false"};
  } else if constexpr (std::is_arithmetic_v<T>) {
    const T value = input.take<T>();
    return {value, numberText(value)};
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    if (input.below(2) == 0) return {{}, "{\n  No object produced, verify your inputs.\n}"};
    return {Vantrel::createObject(), "{\n}"};
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    const std::string text = input.text(input.below(12)).c_str();
    return {text.c_str(), '"' + text + '"'};
  } else {
    Element<T> vector{{}, "{"};
    for (auto& component : vector.value.components) {
      component = input.take<typename T::ComponentType>();
      vector.text += (vector.text.size() > 1 ? ", " : "") + numberText(component);
    }
    vector.text += "}";
    return vector;
  }
}

template <typename T>
std::string statisticsText(const std::vector<T>& elements) {
  if constexpr (std::is_same_v<T, bool>) {
    return oracle::boolStatisticsModel(std::vector<std::uint8_t>(elements.begin(), elements.end()));
  } else if constexpr (std::is_arithmetic_v<T>) {
    return oracle::statisticsModel<T>(elements, oracle::reportPrecision);
  } else {
    std::vector<float> components;
    for (const T& element : elements)
      components.insert(components.end(), element.components.begin(), element.components.end());
    return oracle::vectorStatisticsModel(components, T::componentCount, oracle::reportPrecision);
  }
}

/// "2 out of 3 int", without what surrounds it.
std::string countText(std::size_t shown, std::size_t total, const std::string& typeWord) {
  return "(" + std::to_string(shown) + " out of " + std::to_string(total) + " " + typeWord + ")";
}

std::string listText(const std::vector<std::string>& texts, std::size_t limit,
                     const std::string& typeWord) {
  const std::size_t shown = std::min(texts.size(), limit);
  if (shown == 0) return countText(0, texts.size(), typeWord);
  std::string list = "\n" + countText(shown, texts.size(), typeWord) + "[\n";
  for (std::size_t i = 0; i < shown; ++i) list += (i > 0 ? ",\n" : "") + texts[i];
  return list + " ]\n";
}

template <typename T>
DrawnValue drawRow(Input& input, std::size_t limit) {
  const std::string name = valueType<T>().name;
  std::vector<T> elements;
  std::vector<std::string> texts;
  std::vector<Orvel::Value> values;
  const std::size_t count = input.below(mostElements);
  for (std::size_t i = 0; i < count; ++i) {
    const Element<T> element = drawElement<T>(input);
    elements.push_back(element.value);
    texts.push_back(element.text);
    values.push_back(Orvel::makeValue<T>(element.value));
  }
  std::string text;
  if (constexpr ArrayClass arrayClass = valueType<T>().arrayClass;
      elements.empty() || arrayClass == ArrayClass::listed) {
    text = listText(texts, limit, name);
  } else if constexpr (arrayClass == ArrayClass::summarised) {
    text = statisticsText(elements);
  } else {
    text = "{non supported array of " + name + " }";
  }
  return {Orvel::makeArray(Orvel::typeOf<T>(), values), "array<" + name + ">", text, text};
}

template <typename T>
DrawnValue draw(Input& input, std::size_t levels, std::size_t limit) {
  const std::string name = valueType<T>().name;
  if (levels == 0) {
    Element<T> element = drawElement<T>(input);
    return {Orvel::makeValue<T>(std::move(element.value)), name, element.text, element.text};
  }
  if (levels == 1) return drawRow<T>(input, limit);
  std::vector<Orvel::Value> values;
  std::vector<std::string> textsInAny;
  std::vector<std::string> textsInValue;
  std::string rowName = name;
  Orvel::Type rowType = Orvel::typeOf<T>();
  for (std::size_t level = 1; level < levels; ++level) {
    rowName = "array<" + rowName + ">";
    rowType = Orvel::makeArrayType(rowType);
  }
  const std::size_t count = input.below(5);
  for (std::size_t i = 0; i < count; ++i) {
    DrawnValue row = draw<T>(input, levels - 1, limit);
    values.push_back(row.value);
    textsInAny.push_back(row.textInAny);
    textsInValue.push_back(row.textInValue);
  }
  return {Orvel::makeArray(rowType, values), "array<" + rowName + ">",
          listText(textsInAny, limit, name), listText(textsInValue, limit, rowName)};
}

using Draw = DrawnValue (*)(Input&, std::size_t, std::size_t);

}  // namespace

DrawnValue drawValue(Input& input, std::size_t levels, std::size_t limit) {
  static const auto draws = std::apply(
      []<typename... T>(const RegisteredType<T>&...) {
        return std::array<Draw, sizeof...(T)>{draw<T>...};
      },
      registeredTypes);
  return draws[input.below(draws.size())](input, levels, limit);
}

}  // namespace vtlcmd::fuzz

#include "text_model.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <tuple>

namespace vtlcmd::oracle {
namespace {

template <typename T>
struct Wording {
  const char* wordWithArticle;
};

constexpr std::tuple wordings{
    Wording<std::int32_t>{"an int"}, Wording<std::uint32_t>{"a uint"},
    Wording<std::int64_t>{"a long"}, Wording<std::uint64_t>{"a ulong"},
    Wording<float>{"a float"},       Wording<double>{"a double"},
    Wording<bool>{"a bool"},
};

template <typename T>
std::string refusal(std::string_view text, std::string_view prefix) {
  const std::string word = std::get<Wording<T>>(wordings).wordWithArticle;
  return std::string(prefix) + "Unable to convert '" + std::string(text) + "' to " + word +
         " value.";
}

template <typename T>
std::optional<T> wholeValue(std::string_view text) {
  if constexpr (std::same_as<T, bool>) {
    if (text != "true" && text != "false") return std::nullopt;
    return text == "true";
  } else {
    const Parsed<T> parsed = parseModel<T>(upToNul(text));
    return parsed.outcome == Outcome::value ? parsed.value : std::nullopt;
  }
}

}  // namespace

template <typename T>
TextAnswer<T> scalarModel(std::string_view text, std::string_view prefix) {
  const auto value = wholeValue<T>(text);
  if (value) return {value, {}};
  return {std::nullopt, {refusal<T>(upToNul(text), prefix)}};
}

template <typename Component>
TextAnswer<std::vector<Component>> vectorModel(std::string_view text, std::size_t componentCount,
                                               std::string_view typeName, std::string_view prefix) {
  const std::string_view whole = upToNul(text);
  const auto commas = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), ','));
  if (commas + 1 != componentCount) {
    return {std::nullopt,
            {std::string(prefix) + "Cannot extract " + std::string(typeName) + " value from '" +
             std::string(whole) + "': invalid number of vector components"}};
  }
  TextAnswer<std::vector<Component>> answer;
  std::vector<Component> components;
  std::string_view rest = whole;
  for (std::size_t i = 0; i < componentCount; ++i) {
    const std::string_view piece = rest.substr(0, rest.find(','));
    rest.remove_prefix(std::min(piece.size() + 1, rest.size()));
    const auto component = wholeValue<Component>(piece);
    if (component) {
      components.push_back(*component);
    } else {
      answer.messages.push_back(refusal<Component>(piece, prefix));
    }
  }
  if (answer.messages.empty()) answer.value = std::move(components);
  return answer;
}

template TextAnswer<std::int32_t> scalarModel(std::string_view, std::string_view);
template TextAnswer<std::uint32_t> scalarModel(std::string_view, std::string_view);
template TextAnswer<std::int64_t> scalarModel(std::string_view, std::string_view);
template TextAnswer<std::uint64_t> scalarModel(std::string_view, std::string_view);
template TextAnswer<float> scalarModel(std::string_view, std::string_view);
template TextAnswer<double> scalarModel(std::string_view, std::string_view);
template TextAnswer<bool> scalarModel(std::string_view, std::string_view);
template TextAnswer<std::vector<float>> vectorModel<float>(std::string_view, std::size_t,
                                                           std::string_view, std::string_view);
template TextAnswer<std::vector<double>> vectorModel<double>(std::string_view, std::size_t,
                                                             std::string_view, std::string_view);

}  // namespace vtlcmd::oracle

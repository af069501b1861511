#include "command_line/vector_notation.h"

#include <charconv>
#include <optional>
#include <string_view>

#include "text/library_text.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner {
namespace {

/// What other notations put round numbers and between them.
constexpr std::string_view brackets = "[]{}()<>";
constexpr std::string_view separators = ",; \t\n";

/// The number of a piece, without the letter that some languages end it with.
std::optional<std::string_view> numberIn(std::string_view piece) {
  if (piece.starts_with('+')) piece.remove_prefix(1);
  double number = 0;
  const char* const end = piece.data() + piece.size();
  const auto [stop, error] = std::from_chars(piece.data(), end, number);
  const std::string_view rest(stop, static_cast<std::size_t>(end - stop));
  if (error != std::errc() || (!rest.empty() && rest != "f" && rest != "F")) return std::nullopt;
  return piece.substr(0, piece.size() - rest.size());
}

/// The numbers of a text as the plug-in takes them. Nothing when it isn't so many numbers.
std::optional<std::string> bareNumbers(std::string_view text, std::size_t count) {
  const std::string marks = std::string(brackets).append(separators);
  std::string numbers;
  std::size_t found = 0;
  for (std::size_t begin = text.find_first_not_of(marks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(marks, begin), text.size());
    const std::optional<std::string_view> number = numberIn(text.substr(begin, end - begin));
    if (!number) return std::nullopt;
    if (found++ > 0) numbers += ',';
    numbers += *number;
    begin = text.find_first_not_of(marks, end);
  }
  if (found != count) return std::nullopt;
  return numbers;
}

/// Commas alone separate, and nothing else stands beside the numbers but blanks.
bool isTaken(std::string_view text, std::size_t count) {
  std::size_t commas = 0;
  for (const char character : text) {
    if (brackets.find(character) != std::string_view::npos || character == ';') return false;
    if (character == 'f' || character == 'F') return false;
    if (character == ',') ++commas;
  }
  return commas + 1 == count;
}

/// Zero for what is no vector.
std::size_t componentsOf(const ValueType& type) {
  std::size_t components = 0;
  withTypeNamed(registeredTypes, type.depth == 0 ? type.element : "", [&]<typename T>() {
    if constexpr (Composite<T>) components = valueType<T>().components;
  });
  return components;
}

}  // namespace

std::vector<std::string> vectorNotationHints(const Graph& graph, const TextsByPort& texts) {
  std::vector<std::string> hints;
  for (std::size_t i = 0; i < graph.ports.size(); ++i) {
    const GraphPort& port = graph.ports[i];
    const std::size_t components = componentsOf(port.type);
    if (components == 0 || !texts[i] || isTaken(*texts[i], components)) continue;
    const std::optional<std::string> numbers = bareNumbers(*texts[i], components);
    if (!numbers) continue;
    hints.push_back(std::string(port.isJob ? "Job" : "input") + " port " + inQuotes(port.name) +
                    " (" + nameOf(port.type) +
                    "): a vector is written as bare numbers: " + inQuotes(*numbers));
  }
  return hints;
}

}  // namespace vtlcmd::runner

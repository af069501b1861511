#include "report/text_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <system_error>

namespace vtlcmd::runner {
namespace {

constexpr std::array<std::string_view, 3> statistics{"min", "max", "avg"};
constexpr std::array<std::string_view, 4> components{"x", "y", "z", "w"};

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t,");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t,") - first + 1);
}

/// A number that fills the text, but for the letter behind a float.
std::optional<double> numberIn(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const std::string_view rest(stop, static_cast<std::size_t>(end - stop));
  if (error != std::errc() || (!rest.empty() && rest != "f")) return std::nullopt;
  return number;
}

/// The numbers of a vector, none for another text.
std::vector<double> componentsIn(std::string_view text) {
  std::vector<double> numbers;
  if (!text.starts_with('{') || !text.ends_with('}')) return numbers;
  text = text.substr(1, text.size() - 2);
  while (true) {
    const std::size_t comma = text.find(',');
    const std::optional<double> number = numberIn(trimmed(text.substr(0, comma)));
    if (!number || numbers.size() == components.size()) return {};
    numbers.push_back(*number);
    if (comma == std::string_view::npos) return numbers;
    text.remove_prefix(comma + 1);
  }
}

/// Collects the groups of a text line by line.
class Reader {
 public:
  void read(std::string_view line) {
    const std::size_t colon = line.find(": ");
    const std::string_view key = line.substr(0, std::min(colon, line.size()));
    const std::string_view rest = colon == std::string_view::npos ? "" : line.substr(colon + 2);
    if (std::find(statistics.begin(), statistics.end(), key) != statistics.end()) {
      addStatistic(key, rest);
    } else if (rest.starts_with("count: ")) {
      if (const auto count = numberIn(rest.substr(7))) add(std::string(key), "count", *count);
    } else if (line.starts_with('(') && line.ends_with(')')) {
      block_ = ++arrays_ == 1 ? "" : "array " + std::to_string(arrays_);
    } else if (rest.starts_with('(')) {
      block_ = key;
    }
  }

  std::vector<NumberGroup> take() { return std::move(groups_); }

 private:
  void addStatistic(std::string_view name, std::string_view text) {
    if (const auto number = numberIn(text)) return add(block_, name, *number);
    const std::vector<double> numbers = componentsIn(text);
    for (std::size_t i = 0; i < numbers.size(); ++i)
      add(block_ + (block_.empty() ? "" : " ") + std::string(components[i]), name, numbers[i]);
  }

  /// The numbers of a group follow each other, but for those of a vector's other components.
  void add(const std::string& title, std::string_view name, double number) {
    const auto end =
        groups_.rbegin() + static_cast<std::ptrdiff_t>(std::min(groups_.size(), components.size()));
    const auto group = std::find_if(groups_.rbegin(), end,
                                    [&](const NumberGroup& known) { return known.title == title; });
    NumberGroup& target = group == end ? groups_.emplace_back(NumberGroup{title, {}}) : *group;
    target.numbers.push_back({std::string(name), number});
  }

  std::string block_;
  std::size_t arrays_ = 0;
  std::vector<NumberGroup> groups_;
};

}  // namespace

std::vector<NumberGroup> numbersIn(std::string_view typeName, std::string_view text) {
  if (typeName.find("string") != std::string_view::npos) return {};
  if (const auto number = numberIn(text)) return {{"", {{"value", *number}}}};
  if (const std::vector<double> numbers = componentsIn(text); !numbers.empty()) {
    NumberGroup group;
    for (std::size_t i = 0; i < numbers.size(); ++i)
      group.numbers.push_back({std::string(components[i]), numbers[i]});
    return {group};
  }
  Reader reader;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    reader.read(trimmed(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return reader.take();
}

}  // namespace vtlcmd::runner

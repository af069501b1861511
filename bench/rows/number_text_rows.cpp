#include <charconv>
#include <memory>
#include <string>
#include <vector>

#include "rows/rows.h"
#include "vtlcmd/text/text_builder.h"

namespace vtlcmd::bench {
namespace {

/// Characters that all numbers of a row have at most.
constexpr std::size_t room = 1024;

/// Different numbers of all lengths.
template <typename Number>
std::vector<Number> numbers() {
  std::vector<Number> numbers;
  double number = 1.0 / 3;
  for (int i = 0; i < 64; ++i) {
    numbers.push_back(static_cast<Number>(i % 2 == 0 ? number : -number));
    number = number > 1e9 ? 1.0 / 3 : number * 7;
  }
  return numbers;
}

template <typename Number>
std::to_chars_result writeNumber(char* first, char* last, Number number) {
  if constexpr (std::is_floating_point_v<Number>) {
    return std::to_chars(first, last, number, std::chars_format::general, 6);
  } else {
    return std::to_chars(first, last, number);
  }
}

/// Every call writes all numbers into one text.
template <typename Number>
TimedRow row(const char* typeName) {
  struct Setup {
    std::vector<Number> numbers = bench::numbers<Number>();
    std::size_t characters = 0;
  };
  const auto setup = std::make_shared<Setup>();
  TimedRow row;
  row.name = std::string("number text, ") + typeName;
  row.goal = 1.15;
  row.calls = 20;
  row.pairs = 201;
  row.elements = setup->numbers.size();
  row.subject = [setup](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) {
      TextBuilder text(room);
      for (const Number number : setup->numbers) text << number;
      setup->characters += text.text().size();
    }
  };
  row.limit = [setup](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) {
      std::string text;
      text.reserve(room);
      for (const Number number : setup->numbers) {
        char buffer[32];
        text.append(buffer, writeNumber(buffer, buffer + sizeof buffer, number).ptr);
      }
      setup->characters += text.size();
    }
  };
  return row;
}

}  // namespace

std::vector<TimedRow> numberTextRows() {
  return {row<int>("int"), row<float>("float"), row<double>("double")};
}

}  // namespace vtlcmd::bench

#include "decimal_judges.h"

#include <array>
#include <bit>
#include <cmath>
#include <double-conversion/double-conversion.h>
#include <fast_float/fast_float.h>
#include <limits>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "number_grammar.h"
#include "text_model.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/number_parsing.h"

namespace vtlcmd::oracle {
namespace {

double readByFastFloat(std::string_view decimal) {
  double value = 0;
  const char* const end = decimal.data() + decimal.size();
  if (fast_float::from_chars(decimal.data(), end, value).ptr != end) {
    throw std::runtime_error("fast_float reads a part only of '" + std::string(decimal) + '\'');
  }
  return value;
}

double readByDoubleConversion(std::string_view decimal) {
  using Converter = double_conversion::StringToDoubleConverter;
  static const Converter converter(Converter::NO_FLAGS, 0, 0, nullptr, nullptr);
  int length = 0;
  const double value =
      converter.StringToDouble(decimal.data(), static_cast<int>(decimal.size()), &length);
  if (length != static_cast<int>(decimal.size())) {
    throw std::runtime_error("double-conversion doesn't read '" + std::string(decimal) + '\'');
  }
  return value;
}

struct Judge {
  std::string_view name;
  double (*read)(std::string_view decimal);
};
constexpr std::array judges{Judge{"fast_float", readByFastFloat},
                            Judge{"double-conversion", readByDoubleConversion}};

/// What a text is worth as a T whose 64-bit value is given: only zero and normal values are.
template <FloatingNumber T>
std::optional<T> expectedValue(double value, bool spellsZero) {
  using Limits = std::numeric_limits<T>;
  const double magnitude = std::fabs(value);
  const bool inRange =
      spellsZero || (magnitude >= double{Limits::min()} && magnitude <= double{Limits::max()});
  return inRange ? std::optional(static_cast<T>(value)) : std::nullopt;
}

template <FloatingNumber T>
bool sameBits(std::optional<T> a, std::optional<T> b) {
  if (!a || !b) return a.has_value() == b.has_value();
  return *a == *b && std::signbit(*a) == std::signbit(*b);
}

template <FloatingNumber T>
std::string disagreement(const Judge& judge, const std::string& text, std::string_view decimal,
                         bool spellsZero) {
  ParseStatus status{};
  const std::optional<T> value = parseNumber<T>(text.c_str(), status);
  const std::optional<T> expected = expectedValue<T>(judge.read(decimal), spellsZero);
  if (sameBits(value, expected)) return {};
  std::ostringstream out;
  out.precision(17);
  const auto write = [&](std::optional<T> number) {
    number ? out << *number : out << "out of range";
  };
  out << "parseNumber<" << valueType<T>().name << "> of '" << text << "'\n" << judge.name << ": ";
  write(expected);
  out << "\ngot: ";
  write(value);
  out << '\n';
  return out.str();
}

}  // namespace

std::string firstDisagreement(const std::string& text) {
  const std::string_view seen = upToNul(text);
  const std::optional<FloatText> number = readFloat(seen);
  if (!number || number->hexadecimal) return {};
  std::string_view decimal = seen.substr(0, number->end);
  decimal.remove_prefix(skipSpace(decimal, 0));
  if (decimal.starts_with('+')) decimal.remove_prefix(1);
  for (const Judge& judge : judges) {
    for (const auto find : {disagreement<float>, disagreement<double>}) {
      std::string difference = find(judge, text, decimal, number->digits.isZero());
      if (!difference.empty()) return difference;
    }
  }
  return {};
}

}  // namespace vtlcmd::oracle

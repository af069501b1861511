#include "statistics_model.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <limits>
#include <sstream>
#include <tuple>
#include <type_traits>

#include "soft_float.h"
#include "wide_integer.h"

namespace vtlcmd::oracle {
namespace {

struct Lines {
  std::string minimum;
  std::string maximum;
  std::string average;
};

std::string head(std::size_t count, const std::string& typeName) {
  return "(" + std::to_string(count) + " " + typeName + ")\n  {\n";
}

std::string body(const Lines& lines) {
  return "     min: " + lines.minimum + "\n     max: " + lines.maximum +
         "\n     avg: " + lines.average + "\n  }";
}

const std::string emptyBody = "empty array...  }";

template <typename T>
std::string numberText(T value, int precision = reportPrecision) {
  std::ostringstream stream;
  stream.precision(precision);
  stream << value;
  return stream.str();
}

template <typename T>
struct IntegerRow {
  const char* name;
  /// Bits of the signed integer that the average is truncated to; 0 for an unsigned one of 64.
  int averageBits;
};

constexpr std::tuple integerRows{
    IntegerRow<std::int32_t>{"int", 32},   IntegerRow<std::uint32_t>{"uint", 64},
    IntegerRow<std::int64_t>{"long", 64},  IntegerRow<std::uint64_t>{"ulong", 0},
    IntegerRow<std::int16_t>{"short", 32}, IntegerRow<std::uint16_t>{"ushort", 32},
};

constexpr Int128 powerOfTwo(int exponent) { return Int128{1} << exponent; }

/// The value of T that is equal modulo 2^bits.
template <std::integral T>
T wrapped(Int128 value) {
  const Int128 modulus = powerOfTwo(std::numeric_limits<std::make_unsigned_t<T>>::digits);
  Int128 rest = (value % modulus + modulus) % modulus;
  if (rest > std::numeric_limits<T>::max()) rest -= modulus;
  return static_cast<T>(rest);
}

/// What the processor's truncating conversion gives, for overflow too.
Int128 convertedAverage(Int128 quotient, int averageBits) {
  if (averageBits == 0) return quotient < powerOfTwo(64) ? quotient : powerOfTwo(63);
  const Int128 limit = powerOfTwo(averageBits - 1);
  return quotient >= -limit && quotient < limit ? quotient : -limit;
}

template <std::integral T>
std::string integerStatistics(std::span<const T> elements) {
  const auto& row = std::get<IntegerRow<T>>(integerRows);
  if (elements.empty()) return head(0, row.name) + emptyBody;
  // Wrapping once at the end comes to the same as wrapping at each step.
  Int128 sum = 0;
  for (const T element : elements) sum += element;
  const auto average =
      divide<Binary32>(fromInteger<Binary32>(wrapped<T>(sum)),
                       fromInteger<Binary32>(static_cast<Int128>(elements.size())));
  const Int128 converted = convertedAverage(toInteger<Binary32>(average), row.averageBits);
  const auto [least, greatest] = std::minmax_element(elements.begin(), elements.end());
  return head(elements.size(), row.name) +
         body({numberText(*least), numberText(*greatest), numberText(wrapped<T>(converted))});
}

/// Every `stride`-th value from the first one on.
template <typename Format>
Lines floatingLines(std::span<const typename Format::Value> values, std::size_t stride,
                    int precision) {
  using Bits = typename Format::Bits;
  const auto bitsOf = [](typename Format::Value value) { return std::bit_cast<Bits>(value); };
  Bits minimum = bitsOf(values[0]);
  Bits maximum = minimum;
  Bits sum = minimum;
  std::size_t count = 1;
  for (std::size_t i = stride; i < values.size(); i += stride, ++count) {
    const Bits value = bitsOf(values[i]);
    if (isLess<Format>(value, minimum)) minimum = value;
    if (isLess<Format>(maximum, value)) maximum = value;
    sum = add<Format>(sum, value);
  }
  const Bits average = divide<Format>(sum, fromInteger<Format>(static_cast<Int128>(count)));
  const auto text = [precision](Bits bits) {
    return numberText(std::bit_cast<typename Format::Value>(bits), precision);
  };
  return {text(minimum), text(maximum), text(average)};
}

}  // namespace

template <typename T>
std::string statisticsModel(std::span<const T> elements, [[maybe_unused]] int precision) {
  if constexpr (std::integral<T>) {
    return integerStatistics<T>(elements);
  } else {
    constexpr bool isFloat = std::same_as<T, float>;
    const std::string first = head(elements.size(), isFloat ? "float" : "double");
    if (elements.empty()) return first + emptyBody;
    return first + body(floatingLines<std::conditional_t<isFloat, Binary32, Binary64>>(elements, 1,
                                                                                       precision));
  }
}

template std::string statisticsModel(std::span<const std::int32_t>, int);
template std::string statisticsModel(std::span<const std::uint32_t>, int);
template std::string statisticsModel(std::span<const std::int64_t>, int);
template std::string statisticsModel(std::span<const std::uint64_t>, int);
template std::string statisticsModel(std::span<const std::int16_t>, int);
template std::string statisticsModel(std::span<const std::uint16_t>, int);
template std::string statisticsModel(std::span<const float>, int);
template std::string statisticsModel(std::span<const double>, int);

std::string vectorStatisticsModel(std::span<const float> components, std::size_t width,
                                  int precision) {
  const std::string first = head(components.size() / width, "Math::float" + std::to_string(width));
  if (components.empty()) return first + emptyBody;
  Lines joined{"{", "{", "{"};
  for (std::size_t i = 0; i < width; ++i) {
    const Lines lines = floatingLines<Binary32>(components.subspan(i), width, precision);
    const std::string end = i + 1 < width ? "f, " : "f}";
    joined.minimum += lines.minimum + end;
    joined.maximum += lines.maximum + end;
    joined.average += lines.average + end;
  }
  return first + body(joined);
}

std::string boolStatisticsModel(std::span<const std::uint8_t> bytes) {
  const std::string first = " " + head(bytes.size(), "bool");
  if (bytes.empty()) return first + emptyBody;
  const auto text = [](bool value) { return std::string(value ? "1" : "0"); };
  const auto isTrue = [](std::uint8_t byte) { return byte != 0; };
  const auto behindFirst = std::count_if(bytes.begin() + 1, bytes.end(), isTrue);
  // Doubling the one number compares as halving the other does.
  const auto inSinglePrecision = [](Int128 value) {
    return toInteger<Binary32>(fromInteger<Binary32>(value));
  };
  const bool mostAreTrue =
      2 * inSinglePrecision(behindFirst) > inSinglePrecision(static_cast<Int128>(bytes.size()));
  return first + body({text(std::all_of(bytes.begin(), bytes.end(), isTrue)),
                       text(std::any_of(bytes.begin(), bytes.end(), isTrue)), text(mostAreTrue)});
}

}  // namespace vtlcmd::oracle

#include "statistics_comparison.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "statistics_model.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/output/statistics/array_statistics.h"

namespace vtlcmd::oracle {
namespace {

/// Of two operands that are no numbers an addition may give back either, as the compiler orders
/// them, so the sign of an average that is no number is open.
std::string withoutNanSignInAverage(std::string text) {
  std::size_t at = text.find("avg: ");
  while ((at = text.find("-nan", at)) != std::string::npos) text.erase(at, 1);
  return text;
}

template <typename T>
void writeExactly(std::ostream& stream, const T& value) {
  stream << value;
}

template <std::size_t Count>
void writeExactly(std::ostream& stream, const Math::Vector<float, Count>& vector) {
  const char* separator = "{";
  for (const float component : vector.components) {
    stream << separator << component << "f";
    separator = ", ";
  }
  stream << "}";
}

constexpr int exactPrecision = 17;

/// What the block would be if it showed every bit: six digits hide what becomes of a sum's last.
template <typename T>
std::string exactBlock(const Orvel::Array<T>& array) {
  const Summary<T> summary = summarise(array.data, array.size);
  std::ostringstream stream;
  stream.precision(exactPrecision);
  if constexpr (std::is_same_v<T, bool>) stream << " ";
  stream << "(" << array.size << " " << valueType<T>().name << ")\n  {\n     min: ";
  writeExactly(stream, summary.minimum);
  stream << "\n     max: ";
  writeExactly(stream, summary.maximum);
  stream << "\n     avg: ";
  writeExactly(stream, summary.average);
  stream << "\n  }";
  return stream.str();
}

std::string difference(const std::string& expected, const std::string& got) {
  if (withoutNanSignInAverage(got) == withoutNanSignInAverage(expected)) return {};
  return std::string("expected:\n").append(expected).append("\ngot:\n").append(got) + '\n';
}

/// `model` gives the expected block by the precision of its numbers.
template <typename T, typename Model>
std::string difference(const Orvel::Array<T>& array, const Model& model) {
  TextBuilder text(0);
  printArrayStatistics(text, array);
  const std::string shown = difference(model(reportPrecision), text.text());
  if (!shown.empty() || array.size == 0) return shown;
  return difference(model(exactPrecision), exactBlock(array));
}

}  // namespace

template <typename T>
std::string statisticsDifference(std::span<const T> elements) {
  Orvel::Array<T> array;
  for (const T element : elements) array.append(element);
  return difference(array, [&](int precision) { return statisticsModel(elements, precision); });
}

template std::string statisticsDifference(std::span<const std::int32_t>);
template std::string statisticsDifference(std::span<const std::uint32_t>);
template std::string statisticsDifference(std::span<const std::int64_t>);
template std::string statisticsDifference(std::span<const std::uint64_t>);
template std::string statisticsDifference(std::span<const std::int16_t>);
template std::string statisticsDifference(std::span<const std::uint16_t>);
template std::string statisticsDifference(std::span<const float>);
template std::string statisticsDifference(std::span<const double>);

template <std::size_t Width>
std::string vectorStatisticsDifference(std::span<const float> components) {
  Orvel::Array<Math::Vector<float, Width>> array;
  for (std::size_t i = 0; i < components.size(); i += Width) {
    Math::Vector<float, Width> vector;
    std::copy_n(components.begin() + static_cast<std::ptrdiff_t>(i), Width,
                vector.components.begin());
    array.append(vector);
  }
  return difference(
      array, [&](int precision) { return vectorStatisticsModel(components, Width, precision); });
}

template std::string vectorStatisticsDifference<2>(std::span<const float>);
template std::string vectorStatisticsDifference<3>(std::span<const float>);
template std::string vectorStatisticsDifference<4>(std::span<const float>);

std::string boolStatisticsDifference(std::span<const std::uint8_t> bytes) {
  Orvel::Array<bool> array;
  for (std::size_t i = 0; i < bytes.size(); ++i) array.append(false);
  // A host's bytes are not held to 0 and 1.
  if (!bytes.empty()) std::memcpy(array.data, bytes.data(), bytes.size());
  return difference(array, [&](int) { return boolStatisticsModel(bytes); });
}

}  // namespace vtlcmd::oracle

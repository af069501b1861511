#include "statistics_comparison.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "host/imports/orvel_array.h"
#include "host/value_types.h"
#include "output/statistics/array_statistics.h"
#include "statistics_model.h"

namespace vtlcmd::oracle {
namespace {

/// Of two operands that are no numbers an addition may give back either, as the compiler orders
/// them, so the sign of an average that is no number is open.
std::string withoutNanSignInAverage(std::string text) {
  std::size_t at = text.find("avg: ");
  while ((at = text.find("-nan", at)) != std::string::npos) text.erase(at, 1);
  return text;
}

/// `model` gives the expected text by the precision of the stream.
template <typename T, typename Model>
std::string difference(const Orvel::Array<T>& array, const Model& model) {
  // Six digits hide what becomes of a sum's last bits, seventeen show every one.
  for (const int precision : {reportPrecision, 17}) {
    const std::string expected = model(precision);
    std::ostringstream stream;
    stream.precision(precision);
    printArrayStatistics(stream, array);
    const std::string text = stream.str();
    if (withoutNanSignInAverage(text) != withoutNanSignInAverage(expected)) {
      return std::string("expected:\n").append(expected).append("\ngot:\n").append(text) + '\n';
    }
  }
  return {};
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

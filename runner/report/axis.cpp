#include "report/axis.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "text/spelled_number.h"

namespace vtlcmd::runner {
namespace {

/// Marks that are nearer to an end would run into its label.
constexpr double nearestToEnd = 0.13;

/// The nearest double; zero where there is none. On Windows pow misses it by up to several bits,
/// and one is enough to put a mark a step further.
double powerOfTen(int exponent) {
  return spelledNumber<double>("1e" + std::to_string(exponent)).value_or(0);
}

/// 1, 2 or 5 times a power of ten, near a share of the span. Halves keep the widest span finite.
/// Zero when there is none.
double roundStep(double low, double high, int marks) {
  const double wanted = (high / 2 - low / 2) / marks * 2;
  if (!(wanted > 0)) return 0;
  const double power = powerOfTen(static_cast<int>(std::floor(std::log10(wanted))));
  if (!std::isnormal(power)) return 0;
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (wanted <= factor * power * 1.0001) return factor * power;
  }
  return 10 * power;
}

}  // namespace

std::string shortNumber(double number, int digits) {
  std::array<char, 32> text;
  const auto result = std::to_chars(text.data(), text.data() + text.size(), number,
                                    std::chars_format::general, digits);
  return {text.data(), result.ptr};
}

Axis Axis::rounded(double low, double high, int marks) {
  const double step = roundStep(low, high, marks);
  const double first = std::floor(low / step) * step;
  const double last = std::ceil(high / step) * step;
  if (step == 0 || !std::isfinite(first) || !std::isfinite(last))
    return exact(low, high, marks, false);
  Axis axis(first, last);
  const auto steps = static_cast<int>(std::round(last / step - first / step));
  for (int i = 0; i <= steps; ++i) axis.addMark((std::floor(low / step) + i) * step, step);
  return axis;
}

Axis Axis::exact(double low, double high, int marks, bool isWhole) {
  Axis axis(low, high);
  double step = roundStep(low, high, marks);
  if (isWhole) step = std::max(step, 1.0);
  axis.addMark(low, step);
  axis.addInnerMarks(marks, step, nearestToEnd);
  axis.addMark(high, step);
  return axis;
}

Axis Axis::inner(double low, double high, int marks) {
  Axis axis(low, high);
  axis.addInnerMarks(marks, roundStep(low, high, marks), 0);
  return axis;
}

Axis Axis::widened(double by) const {
  Axis axis = *this;
  axis.low_ -= by;
  axis.high_ += by;
  return axis;
}

void Axis::addInnerMarks(int marks, double step, double nearest) {
  if (!(step > 0 && high_ > low_)) return;
  const double first = std::ceil(low_ / step);
  for (int i = 0; i <= 2 * marks; ++i) {
    const double place = (first + i) * step;
    if (share(place) >= nearest && share(place) <= 1 - nearest) addMark(place, step);
  }
}

double Axis::share(double number) const {
  if (!(high_ > low_)) return 0.5;
  const double span = high_ - low_;
  if (std::isfinite(span)) return (number - low_) / span;
  return (number / 2 - low_ / 2) / (high_ / 2 - low_ / 2);
}

void Axis::addMark(double place, double step) {
  if (!marks_.empty() && place <= marks_.back().place) return;
  // As many digits as tell neighbours apart.
  const double largest = std::max(std::abs(low_), std::abs(high_));
  const int digits =
      step > 0 ? static_cast<int>(std::clamp(std::ceil(std::log10(largest / step)) + 1, 6.0, 17.0))
               : 6;
  // A sum of steps may miss zero by next to nothing.
  if (std::abs(place) < step * 1e-9) place = 0;
  marks_.push_back({place, shortNumber(place, digits)});
}

}  // namespace vtlcmd::runner

#pragma once

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <tuple>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/output/statistics/average.h"
#include "vtlcmd/output/statistics/kernels.h"

namespace vtlcmd {

/// What a report says of an array's elements, exact to the bit. Vectors go component by component.
/// The average is what the report shows: of bools the truth of "more than half", of integers an
/// integer of the element's type.
template <typename T>
struct Summary {
  T minimum;
  T maximum;
  T average;
};

namespace statistics {

static_assert(FLT_EVAL_METHOD == 0, "sums are rounded to the element's own precision");

template <typename T>
Summary<T> summaryOf(const Totals<T>& totals, std::uint64_t count, const T*) noexcept {
  return {totals.minimum, totals.maximum, averageOf(totals.sum, count)};
}

template <typename Number, std::size_t Count>
Summary<Math::Vector<Number, Count>> summaryOf(const Totals<Math::Vector<Number, Count>>& totals,
                                               std::uint64_t count,
                                               const Math::Vector<Number, Count>*) noexcept {
  Math::Vector<Number, Count> average;
  for (std::size_t i = 0; i < Count; ++i)
    average.components[i] = averageOf(totals.sum.components[i], count);
  return {totals.minimum, totals.maximum, average};
}

inline Summary<bool> summaryOf(const Totals<bool>& totals, std::uint64_t count,
                               const bool* elements) noexcept {
  const bool firstIsTrue = *reinterpret_cast<const unsigned char*>(elements) != 0;
  return {totals.trueCount == count, totals.trueCount != 0,
          mostAreTrue(totals.trueCount - (firstIsTrue ? 1 : 0), count)};
}

}  // namespace statistics

/// Of `count` elements, at least one, in array order and one pass, without allocation.
///
/// An element takes the minimum's or maximum's place only where it compares less or greater: of
/// equal zeros the first stays, a NaN never comes in, and a NaN that is first never gives way. Sums
/// run one addition at a time from the first element on, in the element's own width: integers wrap,
/// floating additions round at every step. Elements of a bool array are read as bytes, any of which
/// but 0 is true.
///
/// Any thread; the elements must stay as they are meanwhile.
template <Summarised T>
Summary<T> summarise(const T* elements, std::uint64_t count) noexcept {
  const auto kernel = std::get<statistics::Kernel<T>>(*statistics::chosenKernels);
  return statistics::summaryOf(kernel(elements, count), count, elements);
}

}  // namespace vtlcmd

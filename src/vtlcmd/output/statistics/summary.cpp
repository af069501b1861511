#include "vtlcmd/output/statistics/summary.h"

#include <cfloat>
#include <cstddef>

#include "vtlcmd/host/imports/vantrel_math.h"
#include "vtlcmd/output/statistics/average.h"
#include "vtlcmd/output/statistics/kernels.h"

namespace vtlcmd {
namespace {

using statistics::Totals;

static_assert(FLT_EVAL_METHOD == 0, "sums are rounded to the element's own precision");

template <typename T>
Summary<T> summaryOf(const Totals<T>& totals, std::uint64_t count, const T*) noexcept {
  return {totals.minimum, totals.maximum, averageOf(totals.sum, count)};
}

template <typename Number, std::size_t Count>
Summary<Vantrel::Math::Vector<Number, Count>> summaryOf(
    const Totals<Vantrel::Math::Vector<Number, Count>>& totals, std::uint64_t count,
    const Vantrel::Math::Vector<Number, Count>*) noexcept {
  Vantrel::Math::Vector<Number, Count> average;
  for (std::size_t i = 0; i < Count; ++i)
    average.components[i] = averageOf(totals.sum.components[i], count);
  return {totals.minimum, totals.maximum, average};
}

Summary<bool> summaryOf(const Totals<bool>& totals, std::uint64_t count,
                        const bool* elements) noexcept {
  const bool firstIsTrue = *reinterpret_cast<const unsigned char*>(elements) != 0;
  return {totals.trueCount == count, totals.trueCount != 0,
          mostAreTrue(totals.trueCount - (firstIsTrue ? 1 : 0), count)};
}

}  // namespace

template <typename T>
Summary<T> summarise(const T* elements, std::uint64_t count) noexcept {
  const auto kernel = std::get<statistics::Kernel<T>>(*statistics::chosenKernels);
  return summaryOf(kernel(elements, count), count, elements);
}

template Summary<bool> summarise(const bool*, std::uint64_t) noexcept;
template Summary<float> summarise(const float*, std::uint64_t) noexcept;
template Summary<double> summarise(const double*, std::uint64_t) noexcept;
template Summary<std::int16_t> summarise(const std::int16_t*, std::uint64_t) noexcept;
template Summary<std::uint16_t> summarise(const std::uint16_t*, std::uint64_t) noexcept;
template Summary<std::int32_t> summarise(const std::int32_t*, std::uint64_t) noexcept;
template Summary<std::uint32_t> summarise(const std::uint32_t*, std::uint64_t) noexcept;
template Summary<std::int64_t> summarise(const std::int64_t*, std::uint64_t) noexcept;
template Summary<std::uint64_t> summarise(const std::uint64_t*, std::uint64_t) noexcept;
template Summary<Vantrel::Math::float2> summarise(const Vantrel::Math::float2*,
                                                  std::uint64_t) noexcept;
template Summary<Vantrel::Math::float3> summarise(const Vantrel::Math::float3*,
                                                  std::uint64_t) noexcept;
template Summary<Vantrel::Math::float4> summarise(const Vantrel::Math::float4*,
                                                  std::uint64_t) noexcept;

}  // namespace vtlcmd

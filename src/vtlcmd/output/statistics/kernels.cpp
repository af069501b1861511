// Compiled once for each kind of processor, with VTLCMD_KERNELS as its name. Calls nothing that
// other files compile too: of such a function the linker keeps one for all, which may be the one
// from here.

#include "vtlcmd/output/statistics/kernels.h"

#include "vtlcmd/output/statistics/floating_kernel.h"
#include "vtlcmd/output/statistics/integer_kernel.h"
#include "vtlcmd/output/statistics/truth_kernel.h"

namespace vtlcmd::statistics::VTLCMD_KERNELS {
namespace {

template <typename T>
constexpr std::size_t componentsOf = 1;
template <typename Number, std::size_t Count>
constexpr std::size_t componentsOf<Vantrel::Math::Vector<Number, Count>> = Count;

template <typename Number, typename T>
Totals<T> floatingTotals(const T* elements, std::uint64_t count) {
  const auto running =
      runThrough<Number, componentsOf<T>>(reinterpret_cast<const Number*>(elements), count);
  Totals<T> totals;
  static_assert(sizeof totals == sizeof running);
  __builtin_memcpy(static_cast<void*>(&totals), &running, sizeof totals);
  return totals;
}

}  // namespace

extern const KernelSet kernels;
constinit const KernelSet kernels{&truthTotals,
                                  &floatingTotals<float, float>,
                                  &floatingTotals<double, double>,
                                  &integerTotals<std::int16_t>,
                                  &integerTotals<std::uint16_t>,
                                  &integerTotals<std::int32_t>,
                                  &integerTotals<std::uint32_t>,
                                  &integerTotals<std::int64_t>,
                                  &integerTotals<std::uint64_t>,
                                  &floatingTotals<float, Vantrel::Math::float2>,
                                  &floatingTotals<float, Vantrel::Math::float3>,
                                  &floatingTotals<float, Vantrel::Math::float4>};

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS

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
struct Parts {
  using Number = T;
  static constexpr std::size_t count = 1;
};
template <typename Component, std::size_t Count>
struct Parts<Math::Vector<Component, Count>> {
  using Number = Component;
  static constexpr std::size_t count = Count;
};

template <typename T>
Totals<T> floatingTotals(const T* elements, std::uint64_t count) {
  using Number = typename Parts<T>::Number;
  const auto running =
      runThrough<Number, Parts<T>::count>(reinterpret_cast<const Number*>(elements), count);
  Totals<T> totals;
  static_assert(sizeof totals == sizeof running);
  __builtin_memcpy(static_cast<void*>(&totals), &running, sizeof totals);
  return totals;
}

template <typename T>
consteval Kernel<T> kernelOf() {
  if constexpr (std::is_same_v<T, bool>) {
    return &truthTotals;
  } else if constexpr (std::is_integral_v<T>) {
    return &integerTotals<T>;
  } else {
    static_assert(std::is_floating_point_v<typename Parts<T>::Number>);
    return &floatingTotals<T>;
  }
}

template <typename... T>
consteval std::tuple<Kernel<T>...> allKernels(std::type_identity<std::tuple<Kernel<T>...>>) {
  return {kernelOf<T>()...};
}

}  // namespace

extern const KernelSet kernels;
constinit const KernelSet kernels = allKernels(std::type_identity<KernelSet>{});

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS

#include <cstddef>

#include "output/statistics/kernels.h"

namespace vtlcmd::statistics {

namespace baseline {
extern const KernelSet kernels;
}
namespace avx2 {
extern const KernelSet kernels;
}
namespace avx512 {
extern const KernelSet kernels;
}

namespace {

#if defined(__x86_64__)

constexpr KernelRow rows[]{
    {"baseline", &baseline::kernels}, {"avx2", &avx2::kernels}, {"avx512", &avx512::kernels}};

std::size_t runnableCount() noexcept {
  __builtin_cpu_init();
  if (!__builtin_cpu_supports("avx2")) return 1;
  const bool hasAvx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                         __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
  return hasAvx512 ? 3 : 2;
}

#else

constexpr KernelRow rows[]{{"baseline", &baseline::kernels}};

std::size_t runnableCount() noexcept { return 1; }

#endif

}  // namespace

std::span<const KernelRow> runnableKernels() noexcept {
  return std::span(rows).first(runnableCount());
}

const KernelSet* const chosenKernels = runnableKernels().back().kernels;

}  // namespace vtlcmd::statistics

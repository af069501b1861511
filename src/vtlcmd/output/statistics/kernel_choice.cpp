#include <cstddef>
#include <cstdint>
#if defined(__x86_64__)
#include <cpuid.h>
#include <immintrin.h>
#endif

#include "vtlcmd/output/statistics/kernels.h"
#include "vtlcmd/output/statistics/runnable_rows.h"

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

// The compilers' own query asks the processor a dozen times in each library that loads.
struct ThisProcessor {
  static CpuidLeaf leaf(unsigned number) noexcept {
    CpuidLeaf answer;
    __cpuid_count(number, 0, answer.eax, answer.ebx, answer.ecx, answer.edx);
    return answer;
  }

  __attribute__((target("xsave"))) static std::uint64_t savedRegisters() noexcept {
    return _xgetbv(0);
  }
};

std::size_t runnableCount() noexcept { return runnableRows(ThisProcessor{}); }

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

#include <cstddef>
#include <cstdint>
#if defined(__x86_64__)
#include <cpuid.h>
#include <immintrin.h>
#if __has_include(<sys/platform/x86.h>)
// It says _Bool, which clang knows in C alone.
#define _Bool bool
#include <sys/platform/x86.h>
#undef _Bool
#endif
#endif

#include "vtlcmd/output/statistics/kernels.h"
#include "vtlcmd/output/statistics/prefetch_distance.h"
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

// In a virtual machine each question to the processor takes microseconds, and the compilers' own
// query asks a dozen in each library that loads.
struct ThisProcessor {
#ifdef CPU_FEATURE_PRESENT
  // The C library has asked already.
  static CpuidLeaf leaf(unsigned number) noexcept {
    const auto& [eax, ebx, ecx, edx] = __x86_get_cpuid_feature_leaf(indexOf(number))->cpuid_array;
    return {eax, ebx, ecx, edx};
  }
  static unsigned indexOf(unsigned number) noexcept {
    if (number == 1) return CPUID_INDEX_1;
    return number == 7 ? CPUID_INDEX_7 : CPUID_INDEX_80000001;
  }
#else
  static CpuidLeaf leaf(unsigned number) noexcept {
    CpuidLeaf answer{};
    __get_cpuid_count(number, 0, &answer.eax, &answer.ebx, &answer.ecx, &answer.edx);
    return answer;
  }
#endif

  __attribute__((target("xsave"))) static std::uint64_t savedRegisters() noexcept {
    return _xgetbv(0);
  }
};

std::size_t runnableCount() noexcept { return runnableRows(ThisProcessor{}); }
std::uint64_t distance() noexcept { return prefetchDistance(ThisProcessor{}); }

#else

constexpr KernelRow rows[]{{"baseline", &baseline::kernels}};

std::size_t runnableCount() noexcept { return 1; }
std::uint64_t distance() noexcept { return usualPrefetchDistance; }

#endif

}  // namespace

std::span<const KernelRow> runnableKernels() noexcept {
  return std::span(rows).first(runnableCount());
}

const KernelSet* const chosenKernels = runnableKernels().back().kernels;
const std::uint64_t bytesAhead = distance();

}  // namespace vtlcmd::statistics

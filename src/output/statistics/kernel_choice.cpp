#include <cstddef>
#include <cstdint>
#if defined(__x86_64__)
#include <cpuid.h>
#include <immintrin.h>
#endif

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

// The compilers' own query asks the processor a dozen times in each library that loads, and in a
// virtual machine each time takes microseconds. Here it is asked three times.
struct CpuidLeaf {
  explicit CpuidLeaf(unsigned leaf) noexcept { __cpuid_count(leaf, 0, eax, ebx, ecx, edx); }

  unsigned eax;
  unsigned ebx;
  unsigned ecx;
  unsigned edx;
};

constexpr bool hasAll(std::uint64_t flags, std::uint64_t wanted) noexcept {
  return (flags & wanted) == wanted;
}

/// Which registers the system saves when it changes threads.
__attribute__((target("xsave"))) std::uint64_t savedRegisters() noexcept { return _xgetbv(0); }

constexpr std::uint64_t avxRegisters = 0x6;
constexpr std::uint64_t avx512Registers = 0xe6;

std::size_t runnableCount() noexcept {
  constexpr unsigned features = 7;
  if (CpuidLeaf(0).eax < features || !hasAll(CpuidLeaf(1).ecx, bit_OSXSAVE | bit_AVX)) return 1;
  const std::uint64_t saved = savedRegisters();
  const CpuidLeaf extended(features);
  if (!hasAll(saved, avxRegisters) || !hasAll(extended.ebx, bit_AVX2)) return 1;
  constexpr unsigned avx512 = bit_AVX512F | bit_AVX512DQ | bit_AVX512BW | bit_AVX512VL;
  return hasAll(saved, avx512Registers) && hasAll(extended.ebx, avx512) ? 3 : 2;
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

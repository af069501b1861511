#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/output/statistics/cpuid_leaf.h"

namespace vtlcmd::statistics {

// Bits of the answers, from the processors' manuals.
namespace leaf1_ecx {
inline constexpr unsigned osxsave = 1U << 27U;
inline constexpr unsigned avx = 1U << 28U;
}  // namespace leaf1_ecx
namespace leaf7_ebx {
inline constexpr unsigned avx2 = 1U << 5U;
inline constexpr unsigned avx512 = 1U << 16U | 1U << 17U | 1U << 30U | 1U << 31U;  // F, DQ, BW, VL
}  // namespace leaf7_ebx
namespace saved_registers {
inline constexpr std::uint64_t avx = 0x6;
inline constexpr std::uint64_t avx512 = 0xe6;
}  // namespace saved_registers

/// How many rows of the table of kernels an x86-64 processor runs under its system, from 1 to 3.
///
/// `processor.leaf(number)` answers as CpuidLeaf; `processor.savedRegisters()` tells which
/// registers the system saves when it changes threads, and is asked only where the answers before
/// say that it may be.
template <typename Processor>
std::size_t runnableRows(const Processor& processor) noexcept {
  if (!hasAll(processor.leaf(1).ecx, leaf1_ecx::osxsave | leaf1_ecx::avx)) return 1;
  const std::uint64_t saved = processor.savedRegisters();
  const unsigned features = processor.leaf(7).ebx;
  if (!hasAll(saved, saved_registers::avx) || !hasAll(features, leaf7_ebx::avx2)) return 1;
  return hasAll(saved, saved_registers::avx512) && hasAll(features, leaf7_ebx::avx512) ? 3 : 2;
}

}  // namespace vtlcmd::statistics

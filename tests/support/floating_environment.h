#pragma once

#include <array>
#include <cfenv>
#include <cstdint>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vtlcmd::testing {

inline constexpr std::array<int, 4> roundingModes{FE_TONEAREST, FE_UPWARD, FE_DOWNWARD,
                                                  FE_TOWARDZERO};

/// A thread's rounding mode, and whether its processor takes subnormal numbers for zeros, while
/// this lives.
class FloatingEnvironment {
 public:
  FloatingEnvironment(int rounding, [[maybe_unused]] bool flushesToZero) {
    std::fegetenv(&before_);
    std::fesetround(rounding);
#if defined(__x86_64__)
    constexpr unsigned flushToZero = 0x8000;
    constexpr unsigned denormalsAreZeros = 0x0040;
    if (flushesToZero) _mm_setcsr(_mm_getcsr() | flushToZero | denormalsAreZeros);
#endif
  }
  FloatingEnvironment(const FloatingEnvironment&) = delete;
  FloatingEnvironment& operator=(const FloatingEnvironment&) = delete;
  ~FloatingEnvironment() { std::fesetenv(&before_); }

  /// All but the flags of what has happened.
  static std::uint32_t settings() {
#if defined(__x86_64__)
    constexpr unsigned flags = 0x003F;
    return (_mm_getcsr() & ~flags) | static_cast<std::uint32_t>(std::fegetround()) << 16U;
#else
    return static_cast<std::uint32_t>(std::fegetround());
#endif
  }

 private:
  std::fenv_t before_;
};

/// Calls `check` in each rounding mode, with subnormal numbers and without.
template <typename Check>
void inEachEnvironment(const Check& check) {
  for (const int rounding : roundingModes) {
    for (const bool flushesToZero : {false, true}) {
      const FloatingEnvironment environment(rounding, flushesToZero);
      check();
    }
  }
}

}  // namespace vtlcmd::testing

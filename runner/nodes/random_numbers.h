#pragma once

#include <cstdint>

namespace vtlcmd::runner {

/// Number `index` of the endless row that a seed stands for: evenly spread from 0 up to 1, in steps
/// of 2^-24, the same on every machine.
inline float randomNumber(std::uint64_t seed, std::uint64_t index) {
  // The mixing steps of the splitmix64 generator, which is public domain.
  std::uint64_t bits = seed + (index + 1) * 0x9e3779b97f4a7c15;
  bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9;
  bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111eb;
  bits ^= bits >> 31U;
  return static_cast<float>(bits >> 40U) * 0x1p-24F;
}

}  // namespace vtlcmd::runner

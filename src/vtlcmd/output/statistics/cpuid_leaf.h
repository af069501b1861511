#pragma once

#include <cstdint>

namespace vtlcmd::statistics {

/// What an x86-64 processor answers to the question of a number; zeros if it doesn't know it.
struct CpuidLeaf {
  unsigned eax;
  unsigned ebx;
  unsigned ecx;
  unsigned edx;
};

constexpr bool hasAll(std::uint64_t flags, std::uint64_t wanted) noexcept {
  return (flags & wanted) == wanted;
}

}  // namespace vtlcmd::statistics

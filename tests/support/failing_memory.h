#pragma once

#include <cstddef>

/// Memory that runs out when a test says so. Whoever links this replaces the C library's allocation
/// functions for its whole process: those under operator new, in the standard library and in every
/// shared library, loaded later too.

namespace vtlcmd::testing {

enum class Failure {
  /// One allocation fails, all behind it succeed.
  once,
  /// All fail from one on.
  lasting,
};

/// Fails the allocation of a number, counted from 0 in its lifetime. One at a time, made and ended
/// while no other thread runs.
class FailingMemory {
 public:
  FailingMemory(std::size_t number, Failure failure) noexcept;
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory();

  /// How many were asked for in the lifetime of the last one, failed ones too.
  static std::size_t allocations() noexcept;
  /// Whether the number was reached.
  static bool hasFailed() noexcept;
};

/// Blocks that nobody has given back yet.
std::size_t liveBlocks() noexcept;

}  // namespace vtlcmd::testing

#pragma once

#include <cstdint>

namespace vtlcmd::runner {

/// The memory in bytes that this process may hope for: that of its control group or job, else that
/// of the machine.
std::uint64_t usableMemory();

/// What a process should take at most when nobody says: most of that.
std::uint64_t mostMemory();

/// From here on this process can take so many bytes of memory beyond what it has; then allocations
/// fail. Without effect where the system refuses.
void limitMemory(std::uint64_t bytes);

}  // namespace vtlcmd::runner

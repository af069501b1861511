#pragma once

#include <cstdint>
#include <string>

namespace vtlcmd::runner {

/// The machine's name in its network; empty when the platform doesn't tell.
std::string hostName();

/// The number of this process on its machine.
std::uint64_t processNumber();

/// Names where process numbers mean the same processes as here: this machine, and on it the
/// container.
std::string processSpace();

/// Whether there is a process of this number here.
bool isRunning(std::uint64_t process) noexcept;

}  // namespace vtlcmd::runner

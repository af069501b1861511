#pragma once

#include <cstdint>
#include <string>

namespace vtlcmd::runner {

/// The machine's name in its network; empty when the platform doesn't tell.
std::string hostName();

/// The number of this process on its machine.
std::uint64_t processNumber();

}  // namespace vtlcmd::runner

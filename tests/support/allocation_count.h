#pragma once

#include <cstddef>

namespace vtlcmd::testing {

/// How often this program has called operator new so far, on all threads.
std::size_t allocationCount();

}  // namespace vtlcmd::testing

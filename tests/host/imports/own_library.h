#pragma once

#include <string>
#include <vector>

/// A core library of the test's own, which writes down each call of it.

namespace Orvel::testing {

/// Forgets all calls, and numbers the blocks from 1 again.
void startAnew();

/// The calls since then or since the last time, in order.
std::vector<std::string> takeCalls();

}  // namespace Orvel::testing

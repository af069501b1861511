#pragma once

#include <chrono>
#include <string>

namespace vtlcmd::runner {

/// A time as in ISO 8601, in UTC, in whole seconds: "2026-01-31T23:59:59Z".
std::string timeText(std::chrono::system_clock::time_point time);

}  // namespace vtlcmd::runner

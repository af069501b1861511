#pragma once

#include <string>

namespace vtlcmd::runner {

/// The shortest text that reads back as the number.
std::string shortestText(double number);

}  // namespace vtlcmd::runner

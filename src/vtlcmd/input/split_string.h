#pragma once

#include <string>
#include <vector>

namespace vtlcmd {

/// The pieces between delimiters, untrimmed and possibly empty: always one more than there are
/// delimiters.
std::vector<std::string> splitString(const std::string& text, char delimiter);

}  // namespace vtlcmd

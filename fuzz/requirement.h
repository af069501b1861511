#pragma once

#include <string_view>

namespace vtlcmd::fuzz {

/// Ends the program when what was found isn't what the oracle says, with both.
void requireEqual(std::string_view what, std::string_view found, std::string_view expected);

/// Ends the program when a promise isn't kept.
void require(bool kept, std::string_view promise);

}  // namespace vtlcmd::fuzz

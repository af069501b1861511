#pragma once

#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// The text with each control character, but those in `kept`, and each byte that isn't UTF-8 in
/// hexadecimal like `\x1b`, so that it can't steer a terminal.
std::string withoutControls(std::string_view text, std::string_view kept = "\n\t");

}  // namespace vtlcmd::runner

#pragma once

#include <string>
#include <string_view>

namespace vtlcmd::validator {

/// The system's texts as UTF-8. What is no character becomes U+FFFD.
std::string utf8(std::wstring_view text);

/// The other way round.
std::wstring wide(std::string_view text);

}  // namespace vtlcmd::validator

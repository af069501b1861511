#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// Takes the first character off a text that isn't empty. Nothing, and the text stays, when the
/// bytes there aren't the UTF-8 form of a character.
std::optional<char32_t> takeCharacter(std::string_view& text);

/// Appends a character, '?' for a number that is none.
void appendCharacter(std::string& text, char32_t character);

}  // namespace vtlcmd::runner

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

/// A word as a POSIX shell takes it from a command line: as it stands when no shell gives any of
/// its characters a meaning, else in single quotes.
std::string shellQuoted(std::string_view word);

/// Words so quoted, with blanks between them.
std::string shellQuotedWords(const std::vector<std::string>& words);

}  // namespace vtlcmd::runner

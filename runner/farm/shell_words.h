#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

/// A word that a POSIX shell takes as it stands, whatever is in it.
std::string shellWord(std::string_view word);

/// Words with blanks between them.
std::string shellWords(const std::vector<std::string>& words);

}  // namespace vtlcmd::runner

#pragma once

#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// A word as a POSIX shell takes it from a command line: as it stands when no shell gives any of
/// its characters a meaning, else in single quotes.
std::string shellQuoted(std::string_view word);

}  // namespace vtlcmd::runner

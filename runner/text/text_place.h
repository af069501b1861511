#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// "line 3, column 7" of the byte at an offset; both count from 1, columns in bytes. Behind the end
/// of the text is its end.
std::string lineAndColumn(std::string_view text, std::size_t offset);

}  // namespace vtlcmd::runner

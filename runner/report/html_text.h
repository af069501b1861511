#pragma once

#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// A text as it stands in a page: characters with a meaning there are written as references, and
/// what is no character of a page becomes a replacement character.
std::string htmlText(std::string_view text);

}  // namespace vtlcmd::runner

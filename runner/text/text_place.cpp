#include "text/text_place.h"

#include <algorithm>

namespace vtlcmd::runner {

std::string lineAndColumn(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t lineEnd = before.rfind('\n');
  const std::size_t lineStart = lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
  return "line " + std::to_string(line) + ", column " +
         std::to_string(before.size() - lineStart + 1);
}

}  // namespace vtlcmd::runner

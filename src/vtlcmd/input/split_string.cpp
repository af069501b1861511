#include "vtlcmd/input/split_string.h"

#include <algorithm>

namespace vtlcmd {

std::vector<std::string> splitString(const std::string& text, char delimiter) {
  std::vector<std::string> pieces;
  const auto delimiters = std::count(text.begin(), text.end(), delimiter);
  pieces.reserve(static_cast<std::size_t>(delimiters) + 1);
  std::size_t position = 0;
  for (std::size_t found; (found = text.find(delimiter, position)) != std::string::npos;
       position = found + 1) {
    pieces.push_back(text.substr(position, found - position));
  }
  pieces.push_back(text.substr(position));
  return pieces;
}

}  // namespace vtlcmd

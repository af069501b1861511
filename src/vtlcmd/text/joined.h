#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace vtlcmd {

/// The pieces in one text, with one allocation.
inline std::string joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

}  // namespace vtlcmd

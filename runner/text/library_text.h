#pragma once

#include <string>
#include <string_view>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/stand_in/make_string.h"

/// Between the type library's strings and the standard ones. Lengths are kept, so a zero byte in a
/// text survives.

namespace vtlcmd::runner {

inline Orvel::StringView viewOf(std::string_view text) noexcept {
  return {text.data(), text.size()};
}

inline Orvel::String libraryText(std::string_view text) { return Orvel::makeString(viewOf(text)); }

inline std::string standardText(const Orvel::String& text) {
  const Orvel::StringView view = text;
  return {view.data, static_cast<std::size_t>(view.size)};
}

inline std::string inQuotes(std::string_view text) {
  std::string quoted(1, '\'');
  quoted += text;
  quoted += '\'';
  return quoted;
}

}  // namespace vtlcmd::runner

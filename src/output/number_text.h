#pragma once

#include <sstream>
#include <string>

namespace vtlcmd {

/// What a stream in its default state gives: decimal integers, floats and doubles alike in the
/// general format at precision 6. Each call has a stream of its own, so that no caller's flags can
/// reach another value's text. The global locale, which we never set, applies.
template <typename Number>
std::string numberText(Number number) {
  std::ostringstream stream;
  stream << number;
  return stream.str();
}

}  // namespace vtlcmd

#pragma once

#include <string>

#include "vtlcmd/text/text_builder.h"

namespace vtlcmd::testing {

/// What `write` appends to a text that it is given.
template <typename Write>
std::string builtText(Write&& write) {
  TextBuilder text(0);
  write(text);
  return text.text();
}

}  // namespace vtlcmd::testing

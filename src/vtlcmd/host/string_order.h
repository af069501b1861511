#pragma once

#include "vtlcmd/host/imports/orvel_string.h"

namespace vtlcmd {

/// The order of `Orvel::String::compare`. [any thread, no throw]
struct StringOrder {
  bool operator()(const Orvel::String& a, const Orvel::String& b) const noexcept {
    return a.compare(b) < 0;
  }
};

}  // namespace vtlcmd

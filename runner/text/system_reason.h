#pragma once

#include <string>
#include <system_error>

namespace vtlcmd::runner {

/// What the system says of an error, in the same words on every platform.
inline std::string reasonOf(const std::system_error& error) {
  return error.code().default_error_condition().message();
}

}  // namespace vtlcmd::runner

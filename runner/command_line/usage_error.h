#pragma once

#include <stdexcept>

namespace vtlcmd::runner {

/// A command line that asks for something that can't be, in words for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace vtlcmd::runner

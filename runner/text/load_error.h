#pragma once

#include <stdexcept>

namespace vtlcmd::runner {

/// A graph or a plug-in that can't be loaded, in words for the user.
class LoadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace vtlcmd::runner

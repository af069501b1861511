#pragma once

#include <stdexcept>

namespace vtlcmd::runner {

/// A data file that can't be read. The text names the file.
class ReadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace vtlcmd::runner

#pragma once

#include <stdexcept>
#include <string>

namespace vtlcmd::runner {

/// A data file that can't be read. The text names the file.
class ReadError : public std::runtime_error {
 public:
  /// `isTransient`: for want of memory or time; another attempt may go better.
  explicit ReadError(const std::string& what, bool isTransient = false)
      : std::runtime_error(what), isTransient_(isTransient) {}

  bool isTransient() const noexcept { return isTransient_; }

 private:
  bool isTransient_;
};

}  // namespace vtlcmd::runner

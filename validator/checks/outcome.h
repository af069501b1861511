#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// How a check ends early, and what it says then.

namespace vtlcmd::validator {

class Failed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The check can't be made here.
class Skipped : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Allowed, but a host may not expect it.
class Warned : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The library in the file can't be loaded, or has no entry.
class Unloadable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Throws Failed, which says `what` ought to hold.
[[noreturn]] void failFor(std::string_view what);

inline void expect(bool holds, std::string_view what) {
  if (!holds) failFor(what);
}

/// Throws Failed with both texts.
void expectText(std::string_view what, std::string_view found, std::string_view wanted);

void expectLines(std::string_view what, const std::vector<std::string>& found,
                 const std::vector<std::string>& wanted);

}  // namespace vtlcmd::validator

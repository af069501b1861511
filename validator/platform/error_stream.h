#pragma once

#include <cstdio>
#include <string>

namespace vtlcmd::validator {

/// Sends what this process writes to its standard error stream to a file of its own.
class CaughtErrors {
 public:
  /// Throws Skipped when there is no room for a file.
  CaughtErrors();
  CaughtErrors(const CaughtErrors&) = delete;
  CaughtErrors& operator=(const CaughtErrors&) = delete;
  ~CaughtErrors();

  /// What was written so far, with line ends of one character.
  std::string text() const;

 private:
  std::FILE* file_;
  int kept_;
};

}  // namespace vtlcmd::validator

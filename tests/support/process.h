#pragma once

#include <string>

/// This process and those that it starts.

namespace vtlcmd::testing {

/// Null removes the variable. An empty value does so too on Windows, whose processes have no empty
/// variables.
void setEnvironment(const char* name, const char* value);

/// Whether a program has a standard error stream.
enum class ErrorStream { read, none };

struct EndedProgram {
  int exitCode;
  /// With line ends of one character.
  std::string errorText;
};

/// Runs a program with one argument to its end.
EndedProgram runProgram(const char* program, const char* argument, ErrorStream errors);

/// Closes the standard error stream's descriptor for its lifetime.
class ClosedErrorStream {
 public:
  ClosedErrorStream();
  ClosedErrorStream(const ClosedErrorStream&) = delete;
  ClosedErrorStream& operator=(const ClosedErrorStream&) = delete;
  ~ClosedErrorStream();

 private:
  int kept_;
};

}  // namespace vtlcmd::testing

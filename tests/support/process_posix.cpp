#include <array>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

#include "support/process.h"

namespace vtlcmd::testing {

void setEnvironment(const char* name, const char* value) {
  value == nullptr ? unsetenv(name) : setenv(name, value, 1);
}

EndedProgram runProgram(const char* program, const char* argument, ErrorStream errors) {
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    errors == ErrorStream::read ? dup2(pipeEnds[1], STDERR_FILENO) : close(STDERR_FILENO);
    execl(program, program, argument, nullptr);
    _exit(127);
  }
  close(pipeEnds[1]);
  std::string text;
  std::array<char, 4096> buffer{};
  for (ssize_t size = 0; (size = read(pipeEnds[0], buffer.data(), buffer.size())) > 0;)
    text.append(buffer.data(), static_cast<std::size_t>(size));
  close(pipeEnds[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text};
}

ClosedErrorStream::ClosedErrorStream() : kept_(dup(STDERR_FILENO)) { close(STDERR_FILENO); }

ClosedErrorStream::~ClosedErrorStream() {
  dup2(kept_, STDERR_FILENO);
  close(kept_);
}

}  // namespace vtlcmd::testing

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "platform/child.h"

namespace vtlcmd::validator {
namespace {

using Clock = std::chrono::steady_clock;

void check(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category(), "starting a check");
}

/// The reading end, closed at its end; the other one is the child's alone.
class Pipe {
 public:
  Pipe() { check(::pipe2(ends_.data(), O_CLOEXEC) == 0 ? 0 : errno); }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    ::close(ends_[0]);
    closeWriter();
  }

  int reader() const noexcept { return ends_[0]; }
  int writer() const noexcept { return ends_[1]; }
  void closeWriter() noexcept {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }

 private:
  std::array<int, 2> ends_{};
};

pid_t start(const std::vector<std::string>& arguments, int output) {
  std::vector<char*> words{const_cast<char*>("vtlcmd-validate")};
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  check(::posix_spawn_file_actions_init(&actions));
  ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error =
      ::posix_spawn(&child, "/proc/self/exe", &actions, nullptr, words.data(), ::environ);
  ::posix_spawn_file_actions_destroy(&actions);
  check(error);
  return child;
}

/// Whether the output's end came before the deadline.
bool readAll(int reader, std::string& text, Clock::time_point deadline) {
  for (;;) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    pollfd waiting{reader, POLLIN, 0};
    if (::poll(&waiting, 1, static_cast<int>(left)) <= 0) continue;
    std::array<char, 4096> buffer;
    const ssize_t count = ::read(reader, buffer.data(), buffer.size());
    if (count == 0) return true;
    if (count > 0 && text.size() < outputLimit)
      text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace

EndedChild runSelf(const std::vector<std::string>& arguments, std::chrono::milliseconds limit) {
  Pipe pipe;
  const pid_t child = start(arguments, pipe.writer());
  pipe.closeWriter();
  EndedChild ended{EndedChild::End::exited, {}, {}};
  const bool inTime = readAll(pipe.reader(), ended.output, Clock::now() + limit);
  if (!inTime) ::kill(child, SIGKILL);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (!inTime) {
    ended.end = EndedChild::End::timedOut;
  } else if (WIFSIGNALED(status)) {
    ended.end = EndedChild::End::crashed;
    ended.reason = "signal " + std::to_string(WTERMSIG(status));
  } else if (WEXITSTATUS(status) != 0) {
    ended.end = EndedChild::End::crashed;
    ended.reason = "exit code " + std::to_string(WEXITSTATUS(status));
  }
  return ended;
}

}  // namespace vtlcmd::validator

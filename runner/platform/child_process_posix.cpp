#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "platform/child_process.h"

namespace vtlcmd::runner {
namespace {

void check(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

void checkCall(int result) {
  if (result < 0) check(errno);
}

class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  void close() {
    if (number >= 0) ::close(number);
    number = -1;
  }

  int number = -1;
};

/// What the child does with its streams and signals before it begins.
class StartSettings {
 public:
  explicit StartSettings(int output) {
    check(::posix_spawn_file_actions_init(&files_));
    check(::posix_spawnattr_init(&attributes_));
    check(::posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
    check(::posix_spawn_file_actions_adddup2(&files_, output, STDOUT_FILENO));
    check(::posix_spawn_file_actions_addopen(&files_, STDERR_FILENO, "/dev/null", O_WRONLY, 0));
    check(::posix_spawn_file_actions_addclosefrom_np(&files_, STDERR_FILENO + 1));
    sigset_t signals;
    ::sigemptyset(&signals);
    check(::posix_spawnattr_setsigmask(&attributes_, &signals));
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXCPU})
      ::sigaddset(&signals, signal);
    check(::posix_spawnattr_setsigdefault(&attributes_, &signals));
    check(::posix_spawnattr_setpgroup(&attributes_, 0));
    check(::posix_spawnattr_setflags(
        &attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
  }
  StartSettings(const StartSettings&) = delete;
  StartSettings& operator=(const StartSettings&) = delete;
  ~StartSettings() {
    ::posix_spawn_file_actions_destroy(&files_);
    ::posix_spawnattr_destroy(&attributes_);
  }

  const posix_spawn_file_actions_t* files() const { return &files_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t files_;
  posix_spawnattr_t attributes_;
};

/// The status of a child that hasn't been waited for.
int waitFor(pid_t process) {
  int status = 0;
  while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
  }
  return status;
}

ProcessEnd endFrom(int status) {
  if (WIFEXITED(status)) return {ProcessEnd::Kind::exited, WEXITSTATUS(status)};
  const int signal = WTERMSIG(status);
  if (signal == SIGXCPU) return {ProcessEnd::Kind::tookTooMuchTime};
  if (signal == SIGKILL) return {ProcessEnd::Kind::killed};
  // Only this thread asks for the text.
  return {ProcessEnd::Kind::crashed, 0, ::strsignal(signal)};  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace

struct ChildProcess::Handles {
  Descriptor output;
  /// Positive while the process is to be waited for.
  pid_t process = 0;
};

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::string>& words)
    : handles_(std::make_unique<Handles>()) {
  int ends[2];
  checkCall(::pipe2(ends, O_CLOEXEC));
  handles_->output.number = ends[0];
  Descriptor input;
  input.number = ends[1];
  const StartSettings settings(input.number);
  std::vector<std::string> texts{program.native()};
  texts.insert(texts.end(), words.begin(), words.end());
  std::vector<char*> arguments;
  arguments.reserve(texts.size() + 1);
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  check(::posix_spawn(&handles_->process, program.c_str(), settings.files(), settings.attributes(),
                      arguments.data(), environ));
}

ChildProcess::~ChildProcess() {
  if (handles_->process <= 0) return;
  ::kill(handles_->process, SIGKILL);
  waitFor(handles_->process);
}

std::optional<std::size_t> ChildProcess::read(std::span<unsigned char> bytes,
                                              std::chrono::steady_clock::time_point deadline) {
  using namespace std::chrono;
  for (;;) {
    const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    if (left <= 0) return std::nullopt;
    pollfd waiting{handles_->output.number, POLLIN, 0};
    // An interrupt of this process isn't the child's.
    if (::poll(&waiting, 1, static_cast<int>(std::min<decltype(left)>(left, 1'000'000))) <= 0)
      continue;
    const ssize_t count = ::read(handles_->output.number, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) checkCall(-1);
  }
}

ProcessEnd ChildProcess::wait() {
  const int status = waitFor(handles_->process);
  handles_->process = 0;
  return endFrom(status);
}

void prepareAsChild(std::chrono::seconds processorTime) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  const rlimit noImage{0, 0};
  ::setrlimit(RLIMIT_CORE, &noImage);
  rlimit time{};
  if (::getrlimit(RLIMIT_CPU, &time) != 0) return;
  time.rlim_cur = std::min<rlim_t>(time.rlim_max, static_cast<rlim_t>(processorTime.count()));
  ::setrlimit(RLIMIT_CPU, &time);
}

}  // namespace vtlcmd::runner

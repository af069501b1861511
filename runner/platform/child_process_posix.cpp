#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
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

/// Makes two connected descriptors.
template <typename Make>
void connect(Make make, int flags, Descriptor& own, Descriptor& other) {
  int pair[2];
  checkCall(make(pair, flags));
  own.number = pair[0];
  other.number = pair[1];
}

/// How long a wait for a deadline is for the system, in milliseconds. No wait is cut short.
int waitingTime(std::chrono::steady_clock::time_point deadline) {
  using namespace std::chrono;
  const auto now = steady_clock::now();
  if (deadline <= now) return 0;
  return static_cast<int>(
      std::min<std::int64_t>(ceil<milliseconds>(deadline - now).count(), 1'000'000));
}

/// What the child does with its streams and signals before it begins.
class StartSettings {
 public:
  /// By number of the stream, where it leads; nowhere when negative.
  explicit StartSettings(const std::array<int, 3>& streams) {
    check(::posix_spawn_file_actions_init(&files_));
    check(::posix_spawnattr_init(&attributes_));
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
      const int target = streams[static_cast<std::size_t>(number)];
      check(target < 0 ? ::posix_spawn_file_actions_addopen(&files_, number, "/dev/null", O_RDWR, 0)
                       : ::posix_spawn_file_actions_adddup2(&files_, target, number));
    }
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
  // Only this thread asks for the text.
  const std::string name = ::strsignal(signal);  // NOLINT(concurrency-mt-unsafe)
  // What others send, and not what a process does wrong.
  for (const int sent : {SIGKILL, SIGTERM, SIGINT, SIGHUP}) {
    if (signal == sent) return {ProcessEnd::Kind::killed, 0, name};
  }
  return {ProcessEnd::Kind::crashed, 0, name};
}

}  // namespace

struct ChildProcess::Handles {
  /// By ChildOutput.
  std::array<Descriptor, 2> outputs;
  Descriptor input;
  /// Positive while the process is to be waited for.
  pid_t process = 0;
};

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::string>& words, ChildStreams streams)
    : handles_(std::make_unique<Handles>()) {
  // The child's ends.
  std::array<Descriptor, 3> ends;
  connect(::pipe2, O_CLOEXEC, handles_->outputs[0], ends[STDOUT_FILENO]);
  if (streams == ChildStreams::all) {
    connect(::pipe2, O_CLOEXEC, handles_->outputs[1], ends[STDERR_FILENO]);
    // Unlike a pipe, a socket can be told to raise no signal when nobody reads any more.
    const auto socketPair = [](int* pair, int flags) {
      return ::socketpair(AF_UNIX, SOCK_STREAM | flags, 0, pair);
    };
    connect(socketPair, SOCK_CLOEXEC, handles_->input, ends[STDIN_FILENO]);
  }
  const StartSettings settings({ends[0].number, ends[1].number, ends[2].number});
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

std::optional<std::size_t> ChildProcess::read(std::span<unsigned char> bytes, Time deadline,
                                              ChildOutput output) {
  Descriptor& source = handles_->outputs[static_cast<std::size_t>(output)];
  for (;;) {
    pollfd waiting{source.number, POLLIN, 0};
    const int time = waitingTime(deadline);
    // An interrupt of this process isn't the child's.
    if (::poll(&waiting, 1, time) <= 0) {
      if (time == 0) return std::nullopt;
      continue;
    }
    const ssize_t count = ::read(source.number, bytes.data(), bytes.size());
    // There is nothing to wait for any more.
    if (count == 0) source.close();
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) checkCall(-1);
  }
}

void ChildProcess::waitForAny(std::span<ChildProcess* const> children, Time deadline) {
  std::vector<pollfd> waiting;
  waiting.reserve(2 * children.size());
  for (const ChildProcess* child : children) {
    for (const Descriptor& output : child->handles_->outputs)
      waiting.push_back({output.number, POLLIN, 0});
  }
  ::poll(waiting.data(), waiting.size(), waitingTime(deadline));
}

void ChildProcess::send(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::send(handles_->input.number, text.data(), text.size(), MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

void ChildProcess::kill() noexcept { ::kill(handles_->process, SIGKILL); }

ProcessEnd ChildProcess::wait() {
  const int status = waitFor(handles_->process);
  handles_->process = 0;
  return endFrom(status);
}

void prepareAsChild() {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  const rlimit noImage{0, 0};
  ::setrlimit(RLIMIT_CORE, &noImage);
}

void limitProcessorTime(std::chrono::seconds time) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_CPU, &limit) != 0) return;
  limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, static_cast<rlim_t>(time.count()));
  ::setrlimit(RLIMIT_CPU, &limit);
}

}  // namespace vtlcmd::runner

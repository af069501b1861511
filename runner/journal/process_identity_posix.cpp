#include <array>
#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

#include "journal/process_identity.h"

namespace vtlcmd::runner {

std::string hostName() {
  std::array<char, 256> name{};
  // A name that doesn't fit may come without its end.
  return ::gethostname(name.data(), name.size() - 1) == 0 ? std::string(name.data())
                                                          : std::string();
}

std::uint64_t processNumber() { return static_cast<std::uint64_t>(::getpid()); }

std::string processSpace() {
  struct stat facts {};
  // Containers may share the machine's name.
  if (::stat("/proc/self/ns/pid", &facts) != 0) return hostName();
  return hostName() + " " + std::to_string(facts.st_ino);
}

bool isRunning(std::uint64_t process) noexcept {
  const auto number = static_cast<pid_t>(process);
  // Numbers up to zero mean groups of processes.
  return number > 0 && (::kill(number, 0) == 0 || errno != ESRCH);
}

}  // namespace vtlcmd::runner

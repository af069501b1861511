#include <array>
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

}  // namespace vtlcmd::runner

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

#include "platform/control_group_posix.h"
#include "platform/memory_limit.h"

namespace vtlcmd::runner {
namespace {

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

/// The number in a control group's file, which says "max" where there is no limit.
std::uint64_t limitIn(const std::filesystem::path& file) {
  std::ifstream stream(file);
  std::uint64_t limit = 0;
  return stream >> limit ? limit : unlimited;
}

std::uint64_t groupLimit() {
  std::uint64_t limit = unlimited;
  for (const std::filesystem::path& folder : controlGroups("memory")) {
    limit = std::min(
        {limit, limitIn(folder / "memory.max"), limitIn(folder / "memory.limit_in_bytes")});
  }
  return limit;
}

/// What the limit of the data segment counts: the pages that this process can write to and doesn't
/// share.
std::uint64_t takenMemory() {
  std::ifstream stream("/proc/self/status");
  for (std::string word; stream >> word;) {
    std::uint64_t kibibytes = 0;
    if (word == "VmData:" && stream >> kibibytes) return kibibytes * 1024;
  }
  return 0;
}

}  // namespace

std::uint64_t usableMemory() {
  const auto pages = static_cast<std::uint64_t>(std::max(0L, ::sysconf(_SC_PHYS_PAGES)));
  const auto pageSize = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
  return std::min(pages * pageSize, groupLimit());
}

std::uint64_t mostMemory() { return usableMemory() / 10 * 9; }

void limitMemory(std::uint64_t bytes) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_DATA, &limit) != 0) return;
  const std::uint64_t taken = takenMemory();
  limit.rlim_cur =
      std::min<rlim_t>(limit.rlim_max, bytes > unlimited - taken ? unlimited : taken + bytes);
  ::setrlimit(RLIMIT_DATA, &limit);
}

}  // namespace vtlcmd::runner

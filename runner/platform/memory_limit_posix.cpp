#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <unistd.h>

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

/// The least limit of a group and of those above it.
std::uint64_t limitOf(const std::filesystem::path& root, std::filesystem::path group,
                      const char* file) {
  std::uint64_t limit = limitIn(root / file);
  for (; group.has_relative_path(); group = group.parent_path())
    limit = std::min(limit, limitIn(root / group.relative_path() / file));
  return limit;
}

/// The file has a line ID:CONTROLLERS:GROUP for each hierarchy that the process is in. The second
/// version of control groups has one, without controllers.
std::uint64_t groupLimit() {
  const std::filesystem::path groups = "/sys/fs/cgroup";
  std::uint64_t limit = unlimited;
  std::ifstream lines("/proc/self/cgroup");
  for (std::string line; std::getline(lines, line);) {
    const std::size_t first = line.find(':');
    const std::size_t second = line.find(':', first + 1);
    if (first == std::string::npos || second == std::string::npos) continue;
    const std::string controllers = "," + line.substr(first + 1, second - first - 1) + ",";
    const std::filesystem::path group = line.substr(second + 1);
    if (controllers == ",,") {
      limit = std::min(limit, limitOf(groups, group, "memory.max"));
    } else if (controllers.find(",memory,") != std::string::npos) {
      limit = std::min(limit, limitOf(groups / "memory", group, "memory.limit_in_bytes"));
    }
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

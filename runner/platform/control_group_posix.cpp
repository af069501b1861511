#include "platform/control_group_posix.h"

#include <fstream>

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

void addWithParents(std::vector<fs::path>& folders, const fs::path& root, fs::path group) {
  for (; group.has_relative_path(); group = group.parent_path())
    folders.push_back(root / group.relative_path());
  folders.push_back(root);
}

}  // namespace

/// The file has a line ID:CONTROLLERS:GROUP for each hierarchy that the process is in. The second
/// version of control groups has one, without controllers.
std::vector<fs::path> controlGroups(const std::string& controller) {
  const fs::path root = "/sys/fs/cgroup";
  std::vector<fs::path> folders;
  std::ifstream lines("/proc/self/cgroup");
  for (std::string line; std::getline(lines, line);) {
    const std::size_t first = line.find(':');
    const std::size_t second = line.find(':', first + 1);
    if (first == std::string::npos || second == std::string::npos) continue;
    const std::string controllers = "," + line.substr(first + 1, second - first - 1) + ",";
    const fs::path group = line.substr(second + 1);
    if (controllers == ",,") {
      addWithParents(folders, root, group);
    } else if (controllers.find("," + controller + ",") != std::string::npos) {
      addWithParents(folders, root / controller, group);
    }
  }
  return folders;
}

}  // namespace vtlcmd::runner

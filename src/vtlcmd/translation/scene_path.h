#pragma once

#include <string>

#include "vtlcmd/host/host_records.h"

namespace vtlcmd {

struct ScenePath {
  /// With the separator that ends it; root included.
  HostPath directory;
  HostPath fileName;
};

/// Cuts a path behind the last separator that follows its root; without one, behind the root.
/// `\` and `/` separate alike on every platform, and so do the roots `C:`, `C:\`,
/// `\\server\share` and `\\?\`.
ScenePath splitScenePath(const HostPath& path);

/// Narrow text of a path: on Windows in the code page that the process's file functions use,
/// elsewhere UTF-8. Throws std::system_error for what can't be expressed.
std::string narrowPath(const HostPath& path);

}  // namespace vtlcmd

#pragma once

#include <string>
#include <string_view>

#include "host/host_records.h"

namespace vtlcmd {

/// A path from the command line as the plug-in wants it: on Windows by the process's code page,
/// elsewhere from UTF-8, whatever the locale. Throws std::system_error for bytes that are no text.
HostPath widePath(std::string_view path);

/// A wide path as UTF-8, whatever the locale and the platform. What is no character becomes a
/// question mark.
std::string utf8Path(const HostPath& path);

}  // namespace vtlcmd

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "vtlcmd/host/host_records.h"

namespace vtlcmd::runner {

/// A path from the command line as the plug-in wants it, from UTF-8, whatever the locale. Throws
/// std::system_error for bytes that are no text.
HostPath widePath(std::string_view path);

/// A wide path as UTF-8, whatever the locale and the platform. What is no character becomes a
/// question mark.
std::string utf8Path(const HostPath& path);

/// The file of a path in the program's texts, and the text of a file's path. These texts are UTF-8
/// on Windows, whatever the code page. Elsewhere they are the file system's bytes, whatever these
/// are. The first throws std::system_error for what can't be a path.
std::filesystem::path filePath(std::string_view text);
std::string fileText(const std::filesystem::path& file);

/// Like ".npy"; letters A to Z are small ones.
std::string extensionOf(const std::filesystem::path& file);

}  // namespace vtlcmd::runner

#pragma once

#include <filesystem>
#include <string>

/// Shared libraries as the platform's loader has them.

namespace vtlcmd::validator {

/// Loads the library in a file of absolute path; null when that fails.
void* openLibrary(const std::filesystem::path& file);
/// Why `openLibrary` just failed on this thread.
std::string libraryError();
void closeLibrary(void* library);
/// Whether anybody in this process has the file loaded.
bool isLoaded(const std::filesystem::path& file);

using LibraryFunction = void (*)();
/// An exported function by its plain name, null when there is none.
LibraryFunction functionOf(void* library, const char* name);

/// The file that the code at an address leads to; empty when there is none.
std::filesystem::path fileAt(const void* address);

}  // namespace vtlcmd::validator

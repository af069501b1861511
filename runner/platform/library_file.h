#pragma once

#include <filesystem>
#include <string>

/// Shared libraries as the platform loads them. To be called from any thread.

namespace vtlcmd::runner {

/// Loads the library in a file of absolute path. Null when that fails; to be closed once otherwise.
void* openLibrary(const std::filesystem::path& file);
void closeLibrary(void* library);

/// Why the last `openLibrary` of this thread gave null.
std::string libraryError();

/// To be cast to the function's own type.
using LibraryFunction = void (*)();

/// An exported function, null when the library has none of that name.
LibraryFunction functionOf(void* library, const char* name);

}  // namespace vtlcmd::runner

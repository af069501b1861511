#pragma once

#include <string>

/// The platform's loader of libraries, as a host uses it.

namespace vtlcmd::testing {

/// Loads a library with everything that it needs; null when that fails.
void* loadLibrary(const char* file);
/// Whether the library could be given up. It may stay loaded for others.
bool unloadLibrary(void* library);
/// Whether anybody in this process has the library loaded.
bool isLibraryLoaded(const char* file);

using LibraryFunction = void (*)();
/// An exported function by its plain name, null when there is none.
LibraryFunction functionOf(void* library, const char* name);

/// The file name, without folder, of the library that the code at an address leads to.
std::string libraryAt(const void* address);

}  // namespace vtlcmd::testing

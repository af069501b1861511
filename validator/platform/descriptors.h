#pragma once

#include <cstdio>

/// Files and the environment, as the C library of the platform has them.

namespace vtlcmd::validator {

int descriptorOf(std::FILE* file);
int duplicate(int descriptor);
/// Makes `target` mean what `source` means.
void redirect(int source, int target);
void closeDescriptor(int descriptor);

/// A new file, deleted when it is closed; null when none can be made.
std::FILE* temporaryFile();

/// Null removes the variable. An empty value does so too on Windows.
void setEnvironment(const char* name, const char* value);

}  // namespace vtlcmd::validator

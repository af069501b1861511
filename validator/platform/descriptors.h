#pragma once

#include <cstdio>

/// File numbers and the environment, as the C library of the platform has them.

namespace vtlcmd::validator {

int descriptorOf(std::FILE* file);
int duplicate(int descriptor);
/// Makes `target` mean what `source` means.
void redirect(int source, int target);
void closeDescriptor(int descriptor);

/// Null removes the variable. An empty value does so too on Windows.
void setEnvironment(const char* name, const char* value);

}  // namespace vtlcmd::validator

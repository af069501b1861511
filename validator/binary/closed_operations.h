#pragma once

#include <string_view>

namespace vtlcmd::validator {

/// Whether a plug-in may import a symbol of the closed libraries: a demangled name, with
/// `unsigned long` for 64 bits on every platform.
bool isClosedOperation(std::string_view name);

}  // namespace vtlcmd::validator

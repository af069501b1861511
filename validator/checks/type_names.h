#pragma once

#include <string>

namespace vtlcmd::validator {

/// The piece of a check's name that stands for a type: `Math::float3` gives `float3`, `signed char`
/// gives `signed-char`.
std::string nameOfType(const std::string& typeName);

/// `array<` name `>`, so many times.
std::string arrayName(const std::string& element, unsigned depth);

}  // namespace vtlcmd::validator

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "checks/check.h"
#include "process/result.h"

namespace vtlcmd::validator {

struct Subject {
  /// Absolute.
  std::filesystem::path plugIn;
  std::uint64_t seed;
};

/// Makes the check in this process, which a bad plug-in may end. Throws Unloadable.
Result runHere(const Check& check, const Subject& subject);

/// Makes the check in a process of its own, with a time limit. Throws what starting one throws.
Result runApart(const Check& check, const Subject& subject);

/// The first words of the command line of such a process; the check's name follows.
inline constexpr const char* runOneOption = "--run-one";

/// What such a process does: makes the check and writes its result to standard output. 0.
int runOne(const Check& check, const Subject& subject);

/// Why the plug-in can't be loaded, found out in a process of its own; empty when it can.
std::string loadError(const Subject& subject);
/// The same in this process.
std::string loadErrorHere(const Subject& subject);

/// The name that stands for no check but for loading.
inline constexpr const char* loadOnly = "load";
int runLoad(const Subject& subject);

}  // namespace vtlcmd::validator

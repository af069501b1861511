#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "checks/check.h"

namespace vtlcmd::validator {

struct Options {
  bool json = false;
  bool list = false;
  bool inProcess = false;
  unsigned jobs = 0;
  std::uint64_t seed = 0;
  std::string only;
  std::string skip;
  /// Of a process that is started for one check.
  std::string runOne;
  std::vector<std::string> plugIns;
};

/// The command line read. `exitCode` is set when there is nothing more to do: help was shown, or a
/// usage error on standard error.
struct ReadOptions {
  Options options;
  std::optional<int> exitCode;
};

/// From the words behind the program's name.
ReadOptions readOptions(const std::vector<std::string>& words);

/// The checks whose name `only` is found in (all when it is empty) and `skip` isn't. Throws
/// std::regex_error.
CheckList selected(const CheckList& checks, const std::string& only, const std::string& skip);

}  // namespace vtlcmd::validator

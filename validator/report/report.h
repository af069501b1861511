#pragma once

#include <string>
#include <vector>

#include "checks/check.h"
#include "process/result.h"

namespace vtlcmd::validator {

struct PlugInReport {
  /// As the user wrote it.
  std::string plugIn;
  /// Why nothing could be checked; empty when it could.
  std::string loadError;
  /// One a check.
  std::vector<Result> results;
};

bool isGood(const PlugInReport& report);

/// Lines for a terminal: every result that isn't "passed", then the numbers of each.
std::string textReport(const CheckList& checks, const PlugInReport& report);

/// One document, with line end, of all plug-ins.
std::string jsonReport(const CheckList& checks, const std::vector<PlugInReport>& reports,
                       std::uint64_t seed);

}  // namespace vtlcmd::validator

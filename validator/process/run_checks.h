#pragma once

#include <functional>
#include <vector>

#include "process/run_check.h"

namespace vtlcmd::validator {

/// Makes the checks, `jobs` at once, each by `run`. The results are in the order of the checks.
std::vector<Result> runChecks(const CheckList& checks, const Subject& subject, unsigned jobs,
                              const std::function<Result(const Check&, const Subject&)>& run);

}  // namespace vtlcmd::validator

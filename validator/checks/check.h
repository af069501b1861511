#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vtlcmd::validator {

class Session;

/// One promise of a plug-in to its hosts, and how to see whether it is kept.
struct Check {
  /// Kebab case, begins with the subject. Stable: scripts pick checks by it.
  std::string name;
  /// One sentence.
  std::string promise;
  /// Returns when the promise is kept; otherwise throws one of the outcomes of outcome.h. Any other
  /// exception is a failure too.
  std::function<void(Session&)> run;
};

using CheckList = std::vector<Check>;

/// Every check, ordered by subject. Names are unique.
CheckList allChecks();

}  // namespace vtlcmd::validator

#pragma once

#include <string>

#include "text/json.h"

namespace vtlcmd::runner {

/// In what one run's "key" differs from another's, in words for the user, as in "graph,
/// input_texts.count ("4", not "3")". Empty when both are the same. Hashes aren't told.
std::string keyDifference(const Json& key, const Json& other);

}  // namespace vtlcmd::runner

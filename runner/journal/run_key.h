#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace vtlcmd::runner {

/// In what one run's "key" differs from another's, in words for the user, as in "graph,
/// input_texts.count ("4", not "3")". Empty when both are the same. Hashes aren't told.
std::string keyDifference(const nlohmann::ordered_json& key, const nlohmann::ordered_json& other);

}  // namespace vtlcmd::runner

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

/// The least number of insertions, removals, replacements and exchanges of neighbours, each of one
/// byte, that makes `b` of `a`. Letter case counts.
std::size_t editDistance(std::string_view a, std::string_view b);

/// At most three of `known` that `text` may have meant, the nearest first, equals in given order.
std::vector<std::string> nearMisses(std::string_view text, const std::vector<std::string>& known);

/// "; did you mean 'add' or 'and'?", empty when nothing is near.
std::string nearMissHint(std::string_view text, const std::vector<std::string>& known);

}  // namespace vtlcmd::runner
